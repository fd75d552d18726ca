#include "qt/window/main_window.h"

#include "editor/main_form.h"
#include "forms/bars.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"
#include "qt/window/dock_panel.h"
#include "qt/window/panel_edge.h"
#include "qt/window/status_line.h"
#include "qt/window/tabbed_view.h"
#include "qt/window/toolbox_view.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QToolBar>

namespace quor {

namespace {

constexpr QSize firstSize(1366, 768); // pixels
constexpr int toolboxWidth = 80;
constexpr int propertiesWidth = 320;

// A line of 1 px between two parts of the window.
class Rule final : public QWidget {
public:
    Rule(const Theme& theme, Qt::Orientation orientation, QWidget* parent) : QWidget(parent), m_theme(theme)
    {
        if (orientation == Qt::Vertical) {
            setFixedWidth(1);
        } else {
            setFixedHeight(1);
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).fillRect(rect(), m_theme.Colors().rule); }

private:
    const Theme& m_theme;
};

template <class Layout> Layout* Tight(Layout* layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

} // namespace

MainWindow::MainWindow(frmMain& main, const Theme& theme)
    : m_main(main), m_theme(theme), m_actions(main.abViewEdit(), theme, *this)
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(ToQt(frmMain::caption));
    setContextMenuPolicy(Qt::NoContextMenu);
    const QSize room = screen()->availableSize();
    resize(firstSize.boundedTo(QSize(room.width() * 9 / 10, room.height() * 9 / 10)));
    Bars& bars = main.abViewEdit();
    for (const auto& band : bars.Bands()) {
        if (band->Kind == BandKind::MenuBar) {
            AddMenuBar(*band);
        } else if (band->Kind == BandKind::ToolBar) {
            AddToolBar(*band);
        }
    }
    AddCenter();
    m_subscriptions.push_back(bars.Popup.Subscribe([this](Band& band) { m_actions.Popup(band); }));
    m_subscriptions.push_back(main.Unloaded.Subscribe([this] { close(); }));
}

void MainWindow::AddMenuBar(const Band& band)
{
    for (const BandTool& place : band.Tools()) {
        QMenu& menu = m_actions.MakeMenu(m_main.abViewEdit().BandOf(place.Tool().Opens), *this);
        menu.setTitle(ToQt(place.Caption()));
        menuBar()->addMenu(&menu);
    }
}

void MainWindow::AddToolBar(Band& band)
{
    auto* bar = new QToolBar(ToQt(band.Caption), this);
    bar->setObjectName(ToQt(band.Name));
    bar->setMovable(false);
    bar->setIconSize({20, 20});
    auto* margin = new QWidget; // with the gap behind it, beyond the bar's own
    margin->setFixedWidth(2);
    const QAction* marginPlace = bar->addWidget(margin);
    const auto follow = [this, bar, marginPlace, &band] {
        bar->setVisible(band.Visible());
        for (QAction* action : bar->actions()) {
            if (action == marginPlace) {
                continue;
            }
            bar->removeAction(action);
            if (action->isSeparator()) {
                delete action; // the others are shared
            }
        }
        for (const BandTool& place : band.Tools()) {
            if (place.Tool().IsSeparator()) {
                bar->addSeparator();
            } else {
                bar->addAction(&m_actions.ActionFor(place));
            }
        }
    };
    addToolBar(bar);
    follow();
    m_subscriptions.push_back(band.Changed.Subscribe(follow));
}

void MainWindow::AddCenter()
{
    Bars& bars = m_main.abViewEdit();
    auto* center = new QWidget(this);
    auto* rows = Tight(new QVBoxLayout(center));
    auto* columns = Tight(new QHBoxLayout);
    m_canvas = new CanvasView(m_main, m_theme, center);
    Band& toolbox = bars.BandOf("bndToolbox");
    Band& properties = bars.BandOf("bndObjProps");
    AddPanel(*columns, toolbox, *new ToolboxView(m_main, *m_canvas, m_theme), toolboxWidth, Qt::LeftEdge);
    columns->addWidget(m_canvas, 1);
    AddPanel(*columns, properties, *new TabbedView(properties, m_theme), propertiesWidth, Qt::RightEdge);
    rows->addWidget(new Rule(m_theme, Qt::Horizontal, center));
    rows->addLayout(columns, 1);
    rows->addWidget(new StatusLine(bars.BandOf("bndStatus"), m_theme, center));
    setCentralWidget(center);
    m_actions.AddCanvasKeys(*m_canvas);
    m_canvas->setFocus();
}

// A panel and the rule between it and the canvas, which come and go with the band.
void MainWindow::AddPanel(QBoxLayout& columns, Band& band, QWidget& content, int width, Qt::Edge edge)
{
    // Not for a moment a window of its own: it would never be repainted well again.
    auto* panel = new QWidget(m_canvas->parentWidget());
    auto* parts = Tight(new QHBoxLayout(panel));
    auto* dock = new DockPanel(band, m_theme, content);
    dock->setFixedWidth(width);
    parts->addWidget(dock);
    parts->insertWidget(edge == Qt::LeftEdge ? 1 : 0, new Rule(m_theme, Qt::Vertical, panel));
    if (edge == Qt::RightEdge) {
        new PanelEdge(band, *panel, *dock, *m_canvas);
    }
    columns.addWidget(panel);
    panel->setVisible(band.Visible());
    m_subscriptions.push_back(band.Changed.Subscribe([panel, &band] { panel->setVisible(band.Visible()); }));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_main.IsUnloading() || m_main.Close(CloseReason::User));
}

} // namespace quor
