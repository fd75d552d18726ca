#include "base/failure.h"
#include "qt/ports/qt_common_dialog.h"
#include "qt/ports/qt_help.h"
#include "qt/ports/qt_screen.h"
#include "qt/ports/qt_settings.h"
#include "qt/ports/qt_timers.h"
#include "tests/qt/test.h"

namespace {

TEST(QtSettings, BeginWithAShownGridOfTenPixelsAndKeepWhatIsSet)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("quor/view-editor.ini");
    {
        QtSettings settings(path);
        EXPECT_EQ(settings.GridSize(), 10);
        EXPECT_TRUE(settings.ShowGrid() && settings.SnapToGrid());
        EXPECT_EQ(settings.ViewsDirectory(),
                  QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString());
        EXPECT_EQ(settings.Trouble(), "");
        settings.SetGridSize(25);
        settings.SetShowGrid(false);
        settings.SetSnapToGrid(false);
    }
    {
        QtSettings settings(path);
        EXPECT_EQ(settings.GridSize(), 25);
        EXPECT_FALSE(settings.ShowGrid() || settings.SnapToGrid());
    }
    for (const char* number : {"many", "-3", "0", "32768", "100000", "99999999999"}) {
        WriteFile(path, QByteArray("[grid]\nsize=") + number + "\n");
        EXPECT_EQ(QtSettings(path).GridSize(), 10) << number;
    }
    WriteFile(path, "[grid]\nsize=32767\nnonsense\n");
    {
        QtSettings settings(path);
        EXPECT_NE(settings.Trouble().find("is damaged"), std::string::npos);
        EXPECT_EQ(settings.GridSize(), 32767);
        settings.SetShowGrid(false);
    }
    QtSettings settings(path);
    EXPECT_EQ(settings.Trouble(), "") << "it was replaced";
    EXPECT_EQ(settings.GridSize(), 32767);
    EXPECT_FALSE(settings.ShowGrid());
}

TEST(QtSettings, FailWhereTheyCannotBeKeptAndStayAsTheyWere)
{
    const QTemporaryDir directory;
    WriteFile(directory.filePath("file"), "");
    QtSettings settings(directory.filePath("file/quor/view-editor.ini"));
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(FailureOf([&] { settings.SetGridSize(25); }), failures::pathFileAccess);
        EXPECT_EQ(FailureOf([&] { settings.SetShowGrid(false); }), failures::pathFileAccess);
        EXPECT_TRUE(settings.GridSize() == 10 && settings.ShowGrid());
    }
    QFile::remove(directory.filePath("file"));
    settings.SetGridSize(25);
    EXPECT_EQ(QtSettings(directory.filePath("file/quor/view-editor.ini")).GridSize(), 25) << "once there is room";
}

TEST(QtScreen, TakesBackItsOwnPointerAndNoOther)
{
    QtScreen screen;
    screen.SetMousePointer(MousePointer::Hourglass);
    screen.SetMousePointer(MousePointer::Hourglass);
    screen.SetMousePointer(MousePointer::Default);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    screen.SetMousePointer(MousePointer::Default);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    QGuiApplication::restoreOverrideCursor();
}

TEST(QtTimers, AHandlerMayEndItsTimer)
{
    QtTimers timers;
    std::unique_ptr<Timer> timer = timers.Make();
    EXPECT_FALSE(timer->Enabled());
    int fired = 0;
    const Subscription subscription = timer->Fired.Subscribe([&] {
        ++fired;
        timer.reset();
    });
    timer->SetInterval(1);
    timer->SetEnabled(true);
    while (fired == 0) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(timer, nullptr);
}

TEST(QtCommonDialog, WritesFiltersAsTheToolkitDoes)
{
    EXPECT_EQ(NameFilters("Quor Custom Views (*.qvw)|*.qvw"), QStringList{"Quor Custom Views (*.qvw)"});
    EXPECT_EQ(NameFilters("Pictures|*.bmp;*.jpg|All files (all)|*.*"),
              (QStringList{"Pictures (*.bmp *.jpg)", "All files (*)"}));
    EXPECT_EQ(NameFilters(""), QStringList());
    EXPECT_EQ(FirstSuffix("Quor Custom Views (*.qvw)|*.qvw"), "qvw");
    EXPECT_EQ(FirstSuffix("Pictures|*.bmp;*.jpg"), "bmp");
    EXPECT_EQ(FirstSuffix("All|*.*"), "");
}

TEST(QtHelp, FailsWithoutItsFile)
{
    QtHelp help;
    EXPECT_EQ(FailureOf([&] { help.ShowContents("/none/index.html"); }), failures::fileNotFound);
}

} // namespace
