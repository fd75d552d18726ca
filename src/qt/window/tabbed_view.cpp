#include "qt/window/tabbed_view.h"

#include "forms/bars.h"
#include "forms/form.h"
#include "qt/forms/form_view.h"
#include "qt/ports/qt_text.h"
#include "qt/window/panel_tabs.h"

#include <QBoxLayout>
#include <QScrollArea>

#include <algorithm>

namespace quor {

namespace {
constexpr int topGap = 9; // pixels, between the tabs and the page
}

TabbedView::TabbedView(Band& band, const Theme& theme, QWidget* parent) : QWidget(parent), m_band(band), m_theme(theme)
{
    m_tabs = new PanelTabs(theme, [this](int position) {
        m_band.SetCurrentChild(VisibleChildren().at(static_cast<std::size_t>(position))->Name);
    });
    m_area = new QScrollArea;
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setBackgroundRole(QPalette::Light);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_tabs);
    rows->addSpacing(topGap);
    rows->addWidget(m_area, 1);
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, [this] { Follow(); });
    const auto followSoon = [this] { m_soon.start(0); };
    m_following.push_back(band.Changed.Subscribe(followSoon));
    for (Band* child : band.Children()) {
        m_following.push_back(child->Changed.Subscribe(followSoon));
    }
    Follow();
}

TabbedView::~TabbedView()
{
    m_area->takeWidget();
    for (const auto& [form, view] : m_views) {
        delete view;
    }
}

std::vector<Band*> TabbedView::VisibleChildren() const
{
    std::vector<Band*> visible;
    std::copy_if(m_band.Children().begin(), m_band.Children().end(), std::back_inserter(visible),
                 [](const Band* child) { return child->Visible(); });
    return visible;
}

void TabbedView::Follow()
{
    const std::vector<Band*> visible = VisibleChildren();
    QStringList captions;
    int current = -1;
    for (const Band* child : visible) {
        if (child == m_band.CurrentChild()) {
            current = static_cast<int>(captions.size());
        }
        captions.append(ToQt(child->Caption));
    }
    m_tabs->Show(captions, current);
    ShowPage(current < 0 ? nullptr : m_band.CurrentChild());
}

void TabbedView::ShowPage(const Band* page)
{
    Form* form = page == nullptr || page->Tools().empty() ? nullptr : page->Tools().front().Tool().HostedForm();
    FormView* view = nullptr;
    if (form != nullptr) {
        FormView*& made = m_views[form];
        if (made == nullptr) {
            form->Load();
            made = new FormView(*form, m_theme);
        }
        view = made;
    }
    if (m_area->widget() == view) {
        return;
    }
    if (QWidget* old = m_area->takeWidget()) {
        old->setParent(nullptr);
        old->hide();
    }
    if (view != nullptr) {
        view->resize(view->sizeHint());
        m_area->setWidget(view);
        view->show();
    }
}

} // namespace quor
