// Another element of the same kind is selected: the models alone, and up to the painted property panel.

#include "bench/cases.h"
#include "bench/rows.h"
#include "bench/world.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QStyleFactory>

namespace quor::bench {

namespace {

constexpr std::int64_t elements = 5'000;
constexpr int samples = 60;
constexpr const char* inModels = "select another, in the models";
constexpr const char* onPanel = "select another, to the painted panel";

double SecondsOf(const QElapsedTimer& watch)
{
    return 1e-9 * static_cast<double>(watch.nsecsElapsed());
}

// The canvas has its own measure, so it keeps still.
void Measure(Results& results)
{
    FakeFiles files;
    World world(files);
    frmMain main(world.PortsOfEditor());
    main.Form_Load("");
    AddLeds(main.View(), elements);
    Theme theme;
    theme.Apply(*qApp);
    {
        MainWindow window(main);
        window.show();
        window.Canvas().setUpdatesEnabled(false);
        for (int sample = 0; sample <= samples; ++sample) {
            const Element& led = LedsOf(main.View()).Item(NameOf(sample * 80 + 1));
            const CanvasTarget target{CanvasTarget::What::Element, led.MyControl()};
            QApplication::processEvents();
            QElapsedTimer watch;
            watch.start();
            main.Mouse().Press(target, MouseButton::Middle, 0, 0);
            const double models = SecondsOf(watch);
            QApplication::processEvents();
            if (sample > 0) { // the first one makes the page
                results.Take(Sized(inModels, elements), models);
                results.Take(Sized(onPanel, elements), SecondsOf(watch));
            }
        }
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion"))); // of the cases that follow
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    rows.push_back(Within(results, inModels, elements, 1e-3));
    rows.push_back(Within(results, onPanel, elements, 16e-3));
}

} // namespace

const Family panel{"panel", Measure, AddRows};

} // namespace quor::bench
