// Keeps pictures of the editor's window, light and dark, to be looked at: shots FOLDER [VIEW]. QT_SCALE_FACTOR scales.

#include "apps/editor/program.h"
#include "document/kinds.h"
#include "editor/main_form.h"
#include "forms/bars.h"
#include "qt/ports/qt_common_dialog.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

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

// The dialog that the action opens, which is given up then.
void KeepDialog(const QString& path, const std::function<void()>& action)
{
    QTimer::singleShot(400, [path] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            dialog->grab().save(path);
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    action();
    QTest::qWait(50);
}

// Each page of each kind of element, and of the view.
void KeepPages(Program& program, const QString& path)
{
    frmMain& main = *program.MainForm();
    Band& panel = main.abViewEdit().BandOf("bndObjProps");
    const auto keep = [&](const QString& kind) {
        for (const Band* page : panel.Children()) {
            if (page->Visible()) {
                panel.SetCurrentChild(page->Name);
                QTest::qWait(30);
                const QString name = path + kind + '_' + QString::fromStdString(page->Name) + ".png";
                program.Window()->findChild<QWidget*>("bndObjProps")->grab().save(name);
            }
        }
    };
    main.ReleaseControl();
    keep("view");
    for (const Kind& kind : Kinds()) {
        main.InsertElement(kind.type);
        main.SelectControl(*main.ssScroll().Front());
        keep(QString::fromLatin1(kind.array.data(), static_cast<qsizetype>(kind.array.size())));
    }
}

void KeepAll(Program& program, const QString& path)
{
    frmMain& main = *program.MainForm();
    Keep(program, path + "window.png");
    KeepDialog(path + "open.png", [&] {
        QtCommonDialog dialog;
        dialog.Filter = "Quor Custom Views (*.qvw)|*.qvw";
        dialog.ShowOpen();
    });
    KeepDialog(path + "question.png", [&] { main.QuerySave(); });
    KeepDialog(path + "error.png", [&] {
        main.ReleaseControl();
        main.RequestDelete();
        QTest::qWait(600);
    });
    KeepDialog(path + "color.png", [] { QtCommonDialog().ShowColor(); });
    KeepDialog(path + "font.png", [] {
        QtCommonDialog dialog;
        dialog.FontName = "MS Sans Serif";
        dialog.FontSize = 8.25;
        dialog.Flags = dialog_flags::screenFonts | dialog_flags::fontEffects;
        dialog.ShowFont();
    });
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
    program.MainForm()->InsertElement(3);
    SelectAWidget(program);
    KeepAll(program, folder + "/light_");
    KeepPages(program, folder + "/light_page_");
    SelectAWidget(program);
    program.Looks().UseColors(DarkColors());
    KeepAll(program, folder + "/dark_");
    program.EndSession();
    return 0;
}
