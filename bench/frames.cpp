// What a change costs up to the painted window: among few elements and among many, and the first frame of many.

#include "bench/cases.h"
#include "bench/rows.h"
#include "bench/world.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "forms/bars.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QStyleFactory>

#include <optional>

namespace quor::bench {

namespace {

constexpr std::int64_t few = 500;
constexpr std::int64_t many = 5'000;
constexpr int samples = 60;
constexpr QSize wholeView(2040, 1040); // all of the many elements
constexpr const char* selecting = "select, to the painted window";
constexpr const char* dragging = "drag step, to the painted window";
constexpr const char* dropping = "move, to the painted window";
constexpr const char* deleting = "delete, to the painted window";
constexpr const char* painters = "painters called in a drag step";
constexpr const char* firstFrame = "first frame, with the elements";
constexpr const char* sceneFrame = "first frame, QGraphicsScene";

template <class Step> double SecondsUntilPainted(Step step)
{
    QApplication::processEvents();
    const double start = ProcessorTime();
    step();
    QApplication::processEvents();
    return ProcessorTime() - start;
}

// The editor's window with so many LEDs, worked by the mouse.
class Desk {
public:
    explicit Desk(std::int64_t count)
    {
        m_main.Form_Load("");
        AddLeds(m_main.View(), count);
        m_theme.Apply(*qApp);
        m_window.emplace(m_main);
        m_window->resize(1366, 768);
        m_window->show();
    }

    ~Desk()
    {
        m_window.reset();
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); // of the cases that follow
    }

    Widget& Led(std::int64_t number) { return *LedsOf(m_main.View()).Item(NameOf(number)).MyControl(); }

    double Select(std::int64_t number)
    {
        const CanvasTarget target{CanvasTarget::What::Element, &Led(number)};
        return SecondsUntilPainted([&] { m_main.Mouse().Press(target, MouseButton::Middle, 0, 0); });
    }

    double Delete()
    {
        return SecondsUntilPainted([&] {
            m_main.abViewEdit().Click("miDelete");
            m_world.Timers().Advance(100);
        });
    }

    double Mouse(QEvent::Type type, const QPoint& place, Qt::MouseButtons held)
    {
        QWidget* viewport = Canvas().viewport();
        QMouseEvent event(type, place, viewport->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
        return SecondsUntilPainted([&] { QApplication::sendEvent(viewport, &event); });
    }

    CanvasView& Canvas() { return m_window->Canvas(); }

private:
    FakeFiles m_files;
    World m_world{m_files};
    frmMain m_main{m_world.PortsOfEditor()};
    Theme m_theme;
    std::optional<MainWindow> m_window;
};

QPoint MiddleOf(const Widget& widget)
{
    const Area area = widget.Bounds();
    return {static_cast<int>((area.left + area.width / 2) / twipsPerPixelX),
            static_cast<int>((area.top + area.height / 2) / twipsPerPixelY)};
}

void DragOne(Desk& desk, std::int64_t number, std::int64_t count, Results& results)
{
    constexpr int steps = 10;
    QPoint place = MiddleOf(desk.Led(number));
    desk.Mouse(QEvent::MouseButtonPress, place, Qt::LeftButton);
    desk.Mouse(QEvent::MouseMove, place += QPoint(5, 5), Qt::LeftButton);
    for (int step = 0; step < steps; ++step) {
        const std::uint64_t before = desk.Canvas().PaintedWidgets();
        results.Take(Sized(dragging, count), desk.Mouse(QEvent::MouseMove, place += QPoint(3, 2), Qt::LeftButton));
        results.Take(Sized(painters, count), static_cast<double>(desk.Canvas().PaintedWidgets() - before));
    }
    results.Take(Sized(dropping, count), desk.Mouse(QEvent::MouseButtonRelease, place, Qt::NoButton));
}

void MeasureSteps(std::int64_t count, Results& results)
{
    Desk desk(count);
    constexpr std::int64_t perRow = 100;
    for (int sample = 0; sample <= samples; ++sample) {
        const std::int64_t number = sample % 4 * perRow + sample % 30 + 3;
        const double seconds = desk.Select(number);
        if (sample > 0) { // the first one makes the page
            results.Take(Sized(selecting, count), seconds);
        }
    }
    for (int sample = 0; sample < 10; ++sample) {
        DragOne(desk, sample % 4 * perRow + sample + 3, count, results);
    }
    for (int sample = 0; sample < 20; ++sample) {
        desk.Select(sample % 4 * perRow + sample + 43);
        results.Take(Sized(deleting, count), desk.Delete());
    }
}

double FirstFrame()
{
    FakeFiles files;
    World world(files);
    frmMain main(world.PortsOfEditor());
    main.Form_Load("");
    CanvasView view(main);
    view.resize(wholeView);
    return SecondsUntilPainted([&] {
        AddLeds(main.View(), many);
        view.show();
    });
}

double FirstFrameOfScene()
{
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.resize(wholeView);
    view.setRenderHint(QPainter::Antialiasing);
    return SecondsUntilPainted([&] {
        for (std::int64_t number = 1; number <= many; ++number) {
            scene.addEllipse(static_cast<double>(number % 100 * 20), static_cast<double>(number / 100 * 20), 17, 17,
                             QPen(Qt::black), QBrush(Qt::green));
        }
        view.show();
    });
}

void Measure(Results& results)
{
    for (const std::int64_t count : {few, many}) {
        MeasureSteps(count, results);
    }
    for (int sample = 0; sample < 7; ++sample) {
        results.Take(Sized(firstFrame, many), FirstFrame());
        results.Take(Sized(sceneFrame, many), FirstFrameOfScene());
    }
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    for (const char* name : {selecting, dragging, dropping, deleting}) {
        rows.push_back(Within(results, name, many, 4e-3));
        const double amongFew = results.Seconds(Sized(name, few));
        const double amongMany = results.Seconds(Sized(name, many));
        rows.push_back({name, std::to_string(many), Duration(amongMany),
                        Duration(amongFew) + " at " + std::to_string(few), amongMany / amongFew, 2});
    }
    // An outline of 17 x 17 pixels moved by 3 and 2, with its tip: at a pitch of 20 it meets these rows and columns.
    const double meets = 24;
    const double called = results.Seconds(Sized(painters, many));
    rows.push_back({painters, std::to_string(many), std::to_string(static_cast<int>(called)),
                    std::to_string(static_cast<int>(meets)) + " met by outline and tip", called / meets, 1});
    rows.push_back(NotOver(results, firstFrame, many, sceneFrame, 1));
}

} // namespace

const Family frames{"frames", Measure, AddRows};

} // namespace quor::bench
