#include "qt/window/panel_tabs.h"

#include "qt/forms/tab.h"
#include "qt/theme/style_parts.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

namespace quor {

namespace {

// Pixels.
constexpr int rowPitch = 28;
constexpr int gap = 2;
constexpr int margin = 8;
constexpr int topGap = 2;
constexpr int bottomGap = 6; // with the rule

} // namespace

class PanelTab final : public Tab {
public:
    using Tab::Tab;

    void ShowCaption(const QString& caption)
    {
        setText(caption);
        setObjectName(caption);
        setAccessibleName(caption);
    }

    // The keyboard stops at the tab in front; arrows lead from there to the others.
    void ShowInFront(bool isInFront)
    {
        setChecked(isInFront);
        setFocusPolicy(isInFront ? Qt::TabFocus : Qt::NoFocus);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select) {
            Tab::keyPressEvent(event);
        } else {
            event->ignore();
        }
    }
};

namespace {

// What assistive tools are told of a tab.
class TabAccess final : public QAccessibleWidget {
public:
    explicit TabAccess(PanelTab& tab) : QAccessibleWidget(&tab, QAccessible::PageTab), m_tab(tab) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = m_tab.isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction()) {
            m_tab.click();
        }
    }

private:
    PanelTab& m_tab;
};

QAccessibleInterface* MakeAccess(const QString& /*key*/, QObject* object)
{
    if (auto* tab = dynamic_cast<PanelTab*>(object)) {
        return new TabAccess(*tab);
    }
    if (auto* tabs = dynamic_cast<PanelTabs*>(object)) {
        return new QAccessibleWidget(tabs, QAccessible::PageTabList);
    }
    return nullptr;
}

} // namespace

PanelTabs::PanelTabs(std::function<void(int)> onChoice, QWidget* parent)
    : QWidget(parent), m_onChoice(std::move(onChoice))
{
    setObjectName(QStringLiteral("tabs"));
    static const bool isTold = (QAccessible::installFactory(MakeAccess), true);
    static_cast<void>(isTold);
}

void PanelTabs::Show(const QStringList& captions, int current)
{
    if (captions == m_captions && current == m_current) {
        return;
    }
    while (m_tabs.size() < static_cast<std::size_t>(captions.size())) {
        const int position = static_cast<int>(m_tabs.size());
        auto* tab = new PanelTab(this);
        connect(tab, &QAbstractButton::clicked, this, [this, position] { m_onChoice(position); });
        m_tabs.push_back(tab);
    }
    const bool flows = captions != m_captions;
    m_captions = captions;
    m_current = current;
    int position = 0;
    for (PanelTab* tab : m_tabs) {
        tab->ShowInFront(position == current);
        if (flows) {
            tab->ShowCaption(captions.value(position));
            tab->setVisible(position < captions.size());
        }
        ++position;
    }
    if (flows) {
        Flow();
    }
}

void PanelTabs::Flow()
{
    int x = margin;
    int y = topGap;
    for (PanelTab* tab : m_tabs) {
        if (tab->isHidden()) {
            continue;
        }
        const QSize size = tab->sizeHint();
        if (x > margin && x + size.width() > width() - margin) {
            x = margin;
            y += rowPitch;
        }
        tab->setGeometry(QRect(QPoint(x, y), size));
        x += size.width() + gap;
    }
    setFixedHeight(y + rowPitch + bottomGap);
}

void PanelTabs::Choose(qsizetype position)
{
    if (position < 0 || position >= m_captions.size()) {
        return;
    }
    m_tabs[static_cast<std::size_t>(position)]->setFocus(Qt::TabFocusReason);
    m_onChoice(static_cast<int>(position));
}

void PanelTabs::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        Choose(m_current - 1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        Choose(m_current + 1);
        break;
    case Qt::Key_Home:
        Choose(0);
        break;
    case Qt::Key_End:
        Choose(m_captions.size() - 1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PanelTabs::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        Flow();
    }
    QWidget::changeEvent(event);
}

void PanelTabs::resizeEvent(QResizeEvent* event)
{
    if (event->size().width() != event->oldSize().width()) {
        Flow();
    }
}

void PanelTabs::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawRule(painter, QRectF(0, height() - 1, width(), 1), Qt::Horizontal, palette().color(QPalette::Mid));
}

} // namespace quor
