// What a user does at the real window, by mouse and keys, and how it ends.

#include "tests/qt/desk.h"

#include "apps/editor/session_end.h"
#include "editor/property_panel.h"
#include "forms/bars.h"
#include "forms/fields.h"
#include "forms/form.h"
#include "pages/page.h"
#include "tests/qt/test.h"

#include <QScrollBar>
#include <QTextBrowser>

#include <csignal>

namespace {

TEST(Window, LampsAreDrawnSavedAndOpenedAgain)
{
    EditorDesk desk;
    desk.DragTool(3, {101, 98});
    desk.DragTool(3, {203, 98});
    desk.DragTool(3, {304, 202});
    desk.Drag({305, 205}, {388, 321}); // with the snap: 300 + 83 is nearer to 380
    EXPECT_EQ(desk.Elements(), (QStringList{"LED (Round) 1 100,100 17x17", "LED (Round) 2 200,100 17x17",
                                            "LED (Round) 3 380,320 17x17"}));
    desk.DragHandle(7, {24, 36}); // to 41 x 53
    EXPECT_EQ(desk.Elements().last(), "LED (Round) 3 380,320 40x50");
    desk.DragHandle(0, {-31, -29});
    desk.DragHandle(4, {10, 0});
    EXPECT_EQ(desk.Elements().last(), "LED (Round) 3 350,290 80x80");
    const Page& data = *desk.Main().Panel().FindPage("frmCVBlnDataSource");
    data.Item<ListBox>("cboDataType").ListIndex(1);
    const std::vector<std::string>& sites = data.Item<ListBox>("cboSite").Items();
    EXPECT_EQ(std::count(sites.begin(), sites.end(), "North Ridge"), 1) << "of the program's own server";
    desk.Click({105, 105});
    desk.Key(Qt::Key_Delete);
    const QStringList drawn = {"LED (Round) 2 200,100 17x17", "LED (Round) 3 350,290 80x80"};
    EXPECT_EQ(desk.Elements(), drawn);

    desk.MeetAndType(desk.PathOf("panel"));
    desk.Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desk.Met().size(), 1);
    ASSERT_TRUE(QFile::exists(desk.PathOf("panel.qvw"))) << "the suffix comes by itself";
    desk.Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(desk.Elements(), QStringList()) << "a saved view goes without a question";
    desk.MeetAndType(desk.PathOf("panel.qvw"));
    desk.Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(desk.Met().size(), 1);
    EXPECT_EQ(desk.Elements(), drawn);
    EXPECT_TRUE(desk.Window().close());
    EXPECT_TRUE(desk.HasEnded());
}

TEST(Window, EveryDialogCanBeCancelled)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    const QStringList drawn = desk.Elements();
    desk.MeetAndCancel();
    desk.Choose("miSaveAs");
    desk.MeetAndPush("No");
    desk.MeetAndCancel(); // the file
    desk.Choose("miOpen");
    EXPECT_EQ(desk.Met().size(), 3);
    EXPECT_EQ(desk.Elements(), drawn);
    desk.MeetAndCancel();
    desk.Key(Qt::Key_Delete); // with nothing selected: an error report
    EXPECT_EQ(desk.Met(), QStringList{"Quor Custom View Editor: Unable to delete the selected control."});
    desk.MeetAndCancel();
    EXPECT_FALSE(desk.Window().close());
    desk.MeetAndCancel();
    desk.Choose("miExit");
    EXPECT_EQ(desk.Met(), QStringList(2, "Custom View Editor: Do you want to save changes to My View?"))
        << "a close that was refused is no answer to the next";
    desk.MeetAndPush("No");
    EXPECT_TRUE(desk.Window().close());
    EXPECT_EQ(desk.Met().size(), 1) << "one question a close";
    EXPECT_TRUE(desk.HasEnded());
}

TEST(Window, EscapeGivesUpADragAndASizing)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    const QStringList drawn = desk.Elements();
    desk.Drag({105, 105}, {300, 300}, true);
    EXPECT_EQ(desk.Elements(), drawn);
    EXPECT_FALSE(desk.Main().Mouse().IsDragging());
    desk.Click({105, 105});
    desk.Drag({119, 119}, {300, 300}, true);
    EXPECT_EQ(desk.Elements(), drawn);
    EXPECT_FALSE(desk.Main().Mouse().IsSizing());
    desk.Drag({105, 105}, {-50, 100}); // outside the canvas nothing takes it
    EXPECT_EQ(desk.Elements(), drawn);
}

TEST(Window, TheScrollBarsMoveTheViewAndFollowIt)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    CanvasView& canvas = desk.Window().Canvas();
    canvas.verticalScrollBar()->setValue(700);
    EXPECT_EQ(desk.Main().ssScroll().ScrollOffsetY(), 705) << "whole pixels";
    EXPECT_EQ(desk.Elements().first(), "LED (Round) 1 100,53 17x17");
    desk.DragTool(3, {200, 200}); // 247 in the view, so it snaps to 250
    EXPECT_EQ(desk.Elements().last(), "LED (Round) 2 200,203 17x17");
    desk.Main().ssScroll().ScrollTo(0, 3000);
    EXPECT_EQ(canvas.verticalScrollBar()->value(), 3000);
    canvas.verticalScrollBar()->setValue(canvas.verticalScrollBar()->maximum());
    EXPECT_EQ(desk.Main().ssScroll().ScrollOffsetY() + canvas.viewport()->height() * 15,
              desk.Main().ssScroll().ScrollMaxY());
}

TEST(Window, ThePanelsComeAndGoWithTheirTools)
{
    EditorDesk desk;
    for (const auto& [band, name] : {std::pair("bndToolbox", "miToolbox"), {"bndObjProps", "miToolProps"}}) {
        auto* panel = desk.Window().findChild<QWidget*>(band);
        const BarTool& tool = desk.Main().abViewEdit().Tool(name);
        desk.Choose(name);
        EXPECT_FALSE(panel->isVisible() || tool.Checked()) << band;
        desk.Choose(name);
        EXPECT_TRUE(panel->isVisible() && tool.Checked()) << band;
        panel->findChild<QAbstractButton*>("close")->click();
        EXPECT_FALSE(panel->isVisible() || tool.Checked()) << band;
    }
}

TEST(Window, StandsAsItWasArranged)
{
    const QString layout = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/quor";
    const auto setPitch = [](EditorDesk& desk, const char* pixels, const char* button) {
        desk.Meet([&desk, pixels, button](QWidget& dialog) {
            auto* size = dialog.findChild<QLineEdit*>("txtGridSize");
            EXPECT_EQ(dialog.focusWidget(), size);
            size->selectAll();
            QTest::keyClicks(size, pixels);
            dialog.findChild<QAbstractButton*>(button)->click();
            EXPECT_EQ(desk.Main().ssScroll().Grid().stepX, 15 * QString(pixels).toInt());
            if (dialog.isVisible()) {
                dialog.findChild<QAbstractButton*>("cmdHelp")->click();
                EXPECT_TRUE(dialog.findChild<QTextBrowser*>()->toPlainText().contains("Customize...")) << "above it";
                QTest::keyClick(size, Qt::Key_Escape);
            }
        });
        desk.Choose("miOptions");
        EXPECT_EQ(desk.Met().size(), 1);
    };
    QStringList arranged;
    {
        EditorDesk desk;
        arranged = desk.Toolbar();
        desk.Meet([](QWidget& dialog) {
            auto* tools = dialog.findChild<QListWidget*>("lstTools");
            auto* toolbar = dialog.findChild<QListWidget*>("lstToolbar");
            EXPECT_EQ(dialog.focusWidget(), tools);
            EXPECT_EQ(tools->accessibleName(), "Available tools:");
            EXPECT_EQ(toolbar->accessibleName(), "On the toolbar:");
            toolbar->setCurrentRow(2);
            tools->setCurrentRow(0);
            QTest::keyClick(tools, Qt::Key_Down);
            const QString taken = tools->currentItem()->text();
            QTest::keyClick(tools, Qt::Key_Return); // Save As
            EXPECT_EQ(toolbar->currentItem()->text(), taken);
            toolbar->setCurrentRow(0);
            QTest::keyClick(toolbar, Qt::Key_Return);
            dialog.findChild<QAbstractButton*>("cmdDown")->click();
            dialog.findChild<QAbstractButton*>("chkBar(2)")->click();
            dialog.findChild<QAbstractButton*>("cmdOK")->click();
        });
        desk.Choose("miCustomize");
        EXPECT_EQ(desk.Met().size(), 1);
        arranged.insert(3, "miSaveAs");
        arranged.removeFirst();
        arranged.swapItemsAt(0, 1);
        EXPECT_EQ(desk.Toolbar(), arranged);
        EXPECT_FALSE(desk.Window().findChild<QWidget*>("bndStatus")->isVisible());
        setPitch(desk, "25", "cmdApply");
        EXPECT_TRUE(desk.Window().close());
    }
    {
        EditorDesk desk;
        EXPECT_EQ(desk.Toolbar(), arranged);
        EXPECT_FALSE(desk.Window().findChild<QWidget*>("bndStatus")->isVisible());
        EXPECT_EQ(desk.Main().Grid().Size(), 25);
        setPitch(desk, "10", "cmdOK"); // the settings outlive the test
    }
    EXPECT_TRUE(QDir(layout).removeRecursively());
}

TEST(TheEndOfTheSession, AsksNothingWhetherItIsAQuitEventOrASignal)
{
    for (const bool isSignal : {false, true}) {
        EditorDesk desk;
        desk.DragTool(3, {100, 100});
        int ends = 0;
        const SessionEnd sessionEnd([&] {
            ++ends;
            EXPECT_TRUE(desk.Main().Close(CloseReason::System));
            QCoreApplication::exit(0);
        });
        QTimer::singleShot(0, qApp, [isSignal] {
            if (isSignal) {
                std::raise(SIGTERM);
            } else {
                QCoreApplication::quit();
            }
        });
        QApplication::exec();
        EXPECT_TRUE(desk.HasEnded());
        EXPECT_EQ(ends, 1);
        EXPECT_EQ(desk.Met(), QStringList());
    }
}

TEST(TheEndOfTheSession, ComesAtOnceAtTheSecondSignal)
{
    const auto signalTwice = [] {
        const SessionEnd sessionEnd([] {});
        std::raise(SIGTERM);
        std::raise(SIGTERM);
    };
    EXPECT_EXIT(signalTwice(), ::testing::KilledBySignal(SIGTERM), "");
}

} // namespace
