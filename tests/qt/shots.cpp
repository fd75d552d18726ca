// Keeps pictures of the editor's window, light and dark, to be looked at: shots FOLDER [VIEW]. QT_SCALE_FACTOR scales.

#include "apps/editor/program.h"
#include "editor/main_form.h"
#include "qt/canvas/canvas_view.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cstdio>

namespace {

using namespace quor;

void Keep(Program& program, const QString& path)
{
    QTest::qWait(50);
    if (!program.Window()->grab().save(path)) {
        std::fprintf(stderr, "%s can't be written\n", qPrintable(path));
    }
}

void SelectAWidget(Program& program)
{
    frmMain& main = *program.MainForm();
    if (Widget* widget = main.ssScroll().Back()) {
        main.SelectControl(*widget);
        main.PositionHandles(*widget);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: shots FOLDER [VIEW]\n", stderr);
        return 2;
    }
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const std::string tail = argc > 2 ? std::string("/Open ") + argv[2] : std::string();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Program program(tail);
    program.Start();
    if (!QTest::qWaitFor([&] { return program.Window() != nullptr; })) {
        std::fputs("no window came\n", stderr);
        return 1;
    }
    program.Window()->resize(1366, 768);
    SelectAWidget(program);
    Keep(program, folder + "/light.png");
    program.Looks().UseColors(DarkColors());
    Keep(program, folder + "/dark.png");
    program.EndSession();
    return 0;
}
