#include "qt/window/tabbed_view.h"

#include "forms/bars.h"
#include "forms/form.h"
#include "qt/forms/form_view.h"
#include "qt/ports/qt_text.h"
#include "qt/window/panel_tabs.h"

#include <QApplication>
#include <QBoxLayout>
#include <QScrollArea>
#include <QStackedWidget>

#include <algorithm>

namespace quor {

namespace {

constexpr int roomAround = 8; // pixels, around a control that is scrolled to

// A form as wide as the panel. It scrolls where it is too high, and to the control that the keyboard reaches.
class PageArea final : public QScrollArea {
public:
    explicit PageArea(Form& form)
    {
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(new FormView(form));
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
            if (now != nullptr && isAncestorOf(now) && QApplication::mouseButtons() == Qt::NoButton) {
                ensureWidgetVisible(now, 0, roomAround);
            }
        });
    }
};

} // namespace

TabbedView::TabbedView(Band& band, QWidget* parent) : QWidget(parent), m_band(band), m_stack(new QStackedWidget(this))
{
    m_tabs = new PanelTabs(
        [this](int position) { m_band.SetCurrentChild(m_shown.at(static_cast<std::size_t>(position))->Name); }, this);
    m_tabs->setAccessibleName(ToQt(band.Caption));
    m_stack->addWidget(new QWidget); // where no page is in front
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(m_tabs);
    rows->addWidget(m_stack, 1);
    m_following.push_back(band.Changed.Subscribe([this] { FollowSoon(); }));
    for (Band* child : band.Children()) {
        m_following.push_back(child->Changed.Subscribe([this] { FollowSoon(); }));
    }
    Follow();
}

// A selection hides and shows many tabs; they are looked at once, before anything is painted.
void TabbedView::FollowSoon()
{
    if (!m_willFollow) {
        m_willFollow = true;
        QMetaObject::invokeMethod(
            this, [this] { Follow(); }, Qt::QueuedConnection);
    }
}

void TabbedView::Follow()
{
    m_willFollow = false;
    m_shown.clear();
    std::copy_if(m_band.Children().begin(), m_band.Children().end(), std::back_inserter(m_shown),
                 [](const Band* child) { return child->Visible(); });
    QStringList captions;
    for (const Band* child : m_shown) {
        captions.append(ToQt(child->Caption));
    }
    const auto front = std::find(m_shown.begin(), m_shown.end(), m_band.CurrentChild());
    m_tabs->Show(captions, front == m_shown.end() ? -1 : static_cast<int>(front - m_shown.begin()));
    m_stack->setCurrentWidget(front == m_shown.end() ? m_stack->widget(0) : PageOf(**front));
}

// The form's view in its scroll area, made when it is first shown and then kept.
QWidget* TabbedView::PageOf(const Band& child)
{
    const QString name = ToQt(child.Name);
    auto* page = m_stack->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
    Form* form = child.Tools().empty() ? nullptr : child.Tools().front().Tool().HostedForm();
    if (page == nullptr && form != nullptr) {
        form->Load();
        page = new PageArea(*form);
        page->setObjectName(name);
        m_stack->addWidget(page);
    }
    return page != nullptr ? page : m_stack->widget(0);
}

} // namespace quor
