#include "qt/window/bar_actions.h"

#include "forms/bars.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/theme.h"

#include <QAction>
#include <QCursor>
#include <QKeySequence>
#include <QMenu>

namespace quor {

BarActions::BarActions(Bars& bars, QWidget& window) : m_bars(bars), m_window(window)
{
    for (const auto& tool : bars.Tools()) {
        if (!tool->Shortcut.empty() && tool->Keys == KeyScope::Window) {
            window.addAction(&Make(*tool, tool->Caption(), tool->Tip()));
        }
    }
}

BarActions::~BarActions() = default;

void BarActions::AddCanvasKeys(QWidget& canvas)
{
    for (const auto& tool : m_bars.Tools()) {
        if (!tool->Shortcut.empty() && tool->Keys == KeyScope::Canvas) {
            canvas.addAction(&Make(*tool, tool->Caption(), tool->Tip()));
        }
    }
}

QAction& BarActions::ActionFor(const BandTool& place)
{
    return Make(place.Tool(), place.Caption(), place.Tip());
}

QAction& BarActions::Make(BarTool& tool, const std::string& caption, const std::string& tip)
{
    Follower& made = m_actions[tool.Name + '\n' + caption + '\n' + tip];
    if (made.action != nullptr) {
        return *made.action;
    }
    auto* action = new QAction(IconOf(tool.Name), ToQt(caption), &m_window);
    action->setObjectName(ToQt(tool.Name));
    action->setToolTip(ToQt(tip));
    action->setIconVisibleInMenu(true);
    const bool isTheTools = caption == tool.Caption() && tip == tool.Tip();
    if (!tool.Shortcut.empty()) {
        const QKeySequence keys(ToQt(tool.Shortcut));
        if (isTheTools) {
            action->setShortcut(keys);
            action->setShortcutContext(tool.Keys == KeyScope::Window ? Qt::WindowShortcut : Qt::WidgetShortcut);
        } else { // the keys are the tool's own action's
            action->setText(action->text() + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText));
        }
    }
    const auto read = [&tool, action] {
        action->setEnabled(tool.Enabled());
        action->setVisible(tool.Visible());
        action->setCheckable(tool.Checked() || action->isCheckable());
        action->setChecked(tool.Checked());
    };
    read();
    made = {action, tool.Changed.Subscribe(read)};
    QObject::connect(action, &QAction::triggered, action, [this, &tool] {
        const std::string name = tool.Name;
        m_bars.Click(name);
    });
    // The toolkit flips a check by itself; the model decides what it is.
    QObject::connect(action, &QAction::toggled, action, [&tool, action](bool isChecked) {
        if (isChecked != tool.Checked()) {
            action->setChecked(tool.Checked());
        }
    });
    return *action;
}

QMenu& BarActions::MakeMenu(const Band& band, QWidget& parent)
{
    auto* menu = new QMenu(ToQt(band.Caption), &parent);
    menu->setObjectName(ToQt(band.Name));
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this, menu, &band] { Fill(*menu, band); });
    return *menu;
}

void BarActions::Fill(QMenu& menu, const Band& band)
{
    menu.clear();
    qDeleteAll(menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    for (const BandTool& place : band.Tools()) {
        const BarTool& tool = place.Tool();
        if (tool.IsSeparator()) {
            menu.addSeparator();
        } else if (tool.Opens.empty()) {
            menu.addAction(&ActionFor(place));
        } else if (tool.Visible()) {
            QMenu& inner = MakeMenu(m_bars.BandOf(tool.Opens), menu);
            inner.setTitle(ToQt(place.Caption()));
            inner.setIcon(IconOf(tool.Name));
            inner.menuAction()->setEnabled(tool.Enabled());
            menu.addMenu(&inner);
        }
    }
}

void BarActions::Popup(const Band& band)
{
    delete m_popup;
    m_popup = &MakeMenu(band, m_window);
    m_popup->setToolTipsVisible(true);
    m_popup->popup(QCursor::pos());
}

} // namespace quor
