#include "qt/window/main_window.h"

#include "editor/main_form.h"
#include "forms/bars.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"
#include "qt/window/tabbed_view.h"
#include "qt/window/toolbox_view.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace quor {

namespace {

constexpr QSize firstSize(1366, 768); // pixels
constexpr int toolboxWidth = 80;
constexpr int leastCanvas = 200;
constexpr int leastProperties = 320;
constexpr int titleHeight = 28;
constexpr int titleMargin = 12;
constexpr int closeSize = 20;
constexpr int statusHeight = 23;

template <class Layout> Layout* Tight(Layout* layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

QString StatusOf(const Band& band)
{
    QStringList captions;
    for (const BandTool& place : band.Tools()) {
        if (place.Tool().Visible() && !place.Tool().IsSeparator()) {
            captions.append(ToQt(place.Caption()));
        }
    }
    return captions.join(QStringLiteral("     "));
}

} // namespace

MainWindow::MainWindow(frmMain& main) : m_main(main), m_actions(main.abViewEdit(), *this)
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

// The ground below all shows as rules between the parts.
void MainWindow::AddCenter()
{
    Bars& bars = m_main.abViewEdit();
    auto* center = new QWidget(this);
    center->setBackgroundRole(QPalette::Mid);
    center->setAutoFillBackground(true);
    m_columns = new QSplitter(center);
    m_columns->setChildrenCollapsible(false);
    m_canvas = new CanvasView(m_main, m_columns);
    m_canvas->setMinimumWidth(leastCanvas);
    QWidget* toolbox = MakePanel(bars.BandOf("bndToolbox"), *new ToolboxView(m_main, *m_canvas), toolboxWidth);
    toolbox->setFixedWidth(toolboxWidth);
    m_columns->insertWidget(0, toolbox);
    Band& properties = bars.BandOf("bndObjProps");
    m_columns->addWidget(MakePanel(properties, *new TabbedView(properties), leastProperties));
    m_columns->setStretchFactor(1, 1);
    m_columns->handle(1)->setAttribute(Qt::WA_TransparentForMouseEvents);
    MakeEdge(properties);
    auto* rows = new QVBoxLayout(center);
    rows->setContentsMargins(0, 1, 0, 0);
    rows->setSpacing(1);
    rows->addWidget(m_columns, 1);
    rows->addWidget(MakeStatusLine(bars.BandOf("bndStatus")));
    setCentralWidget(center);
    m_actions.AddCanvasKeys(*m_canvas);
    m_canvas->setFocus();
}

// A title with a button that hides the band, and the content below it.
QWidget* MainWindow::MakePanel(Band& band, QWidget& content, int width)
{
    // Not for a moment a window of its own: it would never be repainted well again.
    auto* panel = new QWidget(m_columns);
    panel->setObjectName(ToQt(band.Name));
    panel->setBackgroundRole(QPalette::Light);
    panel->setAutoFillBackground(true);
    panel->setMinimumWidth(width);
    auto* title = new QLabel(ToQt(band.Caption));
    const int room = width - titleMargin - closeSize;
    title->setFont(QFontMetrics(TitleFont()).horizontalAdvance(title->text()) <= room ? TitleFont() : title->font());
    title->setFixedHeight(titleHeight);
    auto* close = new QToolButton;
    close->setObjectName(QStringLiteral("close"));
    close->setAccessibleName(QStringLiteral("Close %1").arg(title->text()));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::NoFocus);
    close->setIcon(IconOf("close"));
    close->setFixedSize(closeSize, closeSize);
    connect(close, &QToolButton::clicked, panel, [&band] { band.Set(&Band::Visible, false); });
    auto* head = Tight(new QHBoxLayout);
    head->setContentsMargins(titleMargin, 0, 0, 0);
    head->addWidget(title, 1);
    head->addWidget(close);
    auto* rows = Tight(new QVBoxLayout(panel));
    rows->addLayout(head);
    rows->addWidget(&content, 1);
    const auto follow = [panel, &band] { panel->setVisible(band.Visible()); };
    follow();
    m_subscriptions.push_back(band.Changed.Subscribe(follow));
    return panel;
}

// By the edge the user makes the properties wider or narrower; the band keeps the width, 0 for the least.
void MainWindow::MakeEdge(Band& properties)
{
    QSplitterHandle* edge = m_columns->handle(2);
    edge->setObjectName(ToQt(properties.Name) + QStringLiteral(".edge"));
    edge->installEventFilter(this);
    connect(m_columns, &QSplitter::splitterMoved, this,
            [this, &properties] { properties.SetExtent(std::min(m_columns->sizes().back(), Band::mostExtent)); });
    const auto follow = [this, &properties] { m_columns->setSizes({toolboxWidth, leastCanvas, properties.Extent()}); };
    follow();
    m_subscriptions.push_back(properties.Changed.Subscribe(follow));
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        m_main.abViewEdit().BandOf("bndObjProps").SetExtent(0);
    }
    return QMainWindow::eventFilter(watched, event);
}

QWidget* MainWindow::MakeStatusLine(Band& band)
{
    auto* line = new QLabel(m_columns->parentWidget());
    line->setObjectName(ToQt(band.Name));
    line->setTextFormat(Qt::PlainText);
    line->setForegroundRole(QPalette::PlaceholderText);
    line->setBackgroundRole(QPalette::Window);
    line->setAutoFillBackground(true);
    line->setContentsMargins(titleMargin, 0, titleMargin, 0);
    line->setFixedHeight(statusHeight);
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const auto follow = [line, &band] {
        line->setVisible(band.Visible());
        line->setText(StatusOf(band));
    };
    follow();
    m_subscriptions.push_back(band.Changed.Subscribe(follow));
    for (const BandTool& place : band.Tools()) {
        m_subscriptions.push_back(place.Tool().Changed.Subscribe(follow));
    }
    return line;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_main.IsUnloading() || m_main.Close(CloseReason::User));
}

} // namespace quor
