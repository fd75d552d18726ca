// Drags, releases and keys on the canvas that other tests of the window don't meet.

#include "tests/qt/desk.h"

#include "document/view_document.h"
#include "elements/picture.h"
#include "tests/qt/test.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

namespace {

QWidget& View(EditorDesk& desk)
{
    return *desk.Window().Canvas().viewport();
}

// The popup that is open, or null; it is closed.
bool ClosedAPopup(EditorDesk& desk)
{
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu != nullptr) {
        menu->close();
        desk.Settle();
    }
    return menu != nullptr;
}

TEST(CanvasMouse, ADialogThatOpensAtAPressEndsTheDrag)
{
    EditorDesk desk;
    const QString path = desk.PathOf("gone.png");
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(path));
    desk.DragTool(9, {300, 300});
    static_cast<clsPicture&>(*desk.Main().View().CtlOrder().Item(1)).Set(&clsPicture::PictureFile, path.toStdString());
    desk.Click({600, 100});
    ASSERT_TRUE(QFile::remove(path));
    const QStringList before = desk.Elements();
    QWidget other; // the active window, so that the main window has nothing more to lose than the mouse
    other.show();
    other.activateWindow();
    desk.Settle();
    desk.MeetAndPush("OK");
    QTest::mousePress(&View(desk), Qt::LeftButton, {}, {310, 310});
    EXPECT_FALSE(desk.Main().Mouse().IsDragging());
    QTest::mouseMove(&View(desk), {400, 400});
    QTest::mouseRelease(&View(desk), Qt::LeftButton, {}, {400, 400});
    EXPECT_EQ(desk.Elements(), before);
    EXPECT_EQ(desk.Met().size(), 1);
}

TEST(CanvasMouse, AReleaseBelongsToWhatWasPressed)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    for (const QPoint& released : {QPoint(105, 105), QPoint(130, 105), QPoint(121, 121)}) { // lamp, canvas, handle
        QTest::mousePress(&View(desk), Qt::RightButton, {}, {105, 105});
        QTest::mouseRelease(&View(desk), Qt::RightButton, {}, released);
        EXPECT_TRUE(ClosedAPopup(desk)) << released.x();
        EXPECT_NE(desk.Main().SelectedWidget(), nullptr) << released.x();
    }
}

TEST(CanvasMouse, TheMenuKeyOpensThePopup)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, View(desk).mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&desk.Window().Canvas(), &event);
    EXPECT_TRUE(ClosedAPopup(desk));
    EXPECT_NE(desk.Main().SelectedWidget(), nullptr);
}

TEST(CanvasMouse, ADragToTheEdgeScrolls)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    desk.Click({300, 300});
    Canvas& canvas = desk.Main().ssScroll();
    const QPoint corner(View(desk).width() - 4, View(desk).height() - 4);
    QTest::mousePress(&View(desk), Qt::LeftButton, {}, {105, 105});
    QTest::mouseMove(&View(desk), {200, 200});
    QTest::mouseMove(&View(desk), corner);
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas.ScrollOffsetX() >= 900 && canvas.ScrollOffsetY() >= 900; }));
    const QPoint scrolled(canvas.ScrollOffsetX() / 15, canvas.ScrollOffsetY() / 15);
    QTest::mouseRelease(&View(desk), Qt::LeftButton, {}, corner);
    const QPoint landed(static_cast<int>(desk.Main().View().CtlOrder().Item(1)->ObjLeft() / 15),
                        static_cast<int>(desk.Main().View().CtlOrder().Item(1)->ObjTop() / 15));
    EXPECT_LE((landed - (scrolled + corner - QPoint(5, 5))).manhattanLength(), 10) << "under the pointer";
}

TEST(CanvasMouse, AnEdgeThatIsSizedFollowsThePointerWhileItScrolls)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    Canvas& canvas = desk.Main().ssScroll();
    const QPoint corner(View(desk).width() - 4, View(desk).height() - 4);
    QTest::mousePress(&View(desk), Qt::LeftButton, {}, {120, 120}); // the handle at the lower right
    QTest::mouseMove(&View(desk), corner);
    EXPECT_TRUE(QTest::qWaitFor([&] { return canvas.ScrollOffsetX() >= 900; }));
    const qreal right = canvas.ScrollOffsetX() / 15.0 + corner.x();
    QTest::mouseRelease(&View(desk), Qt::LeftButton, {}, corner);
    EXPECT_NEAR(desk.Main().View().CtlOrder().Item(1)->ObjWidth() / 15, right - 100, 10);
}

TEST(CanvasMouse, DeleteIsTheInsertedElementsWhereverTheFocusWas)
{
    EditorDesk desk;
    auto* name = desk.Window().findChild<QLineEdit*>(QStringLiteral("txtViewName"));
    ASSERT_NE(name, nullptr);
    name->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), name);
    desk.Choose("miLEDRound");
    ASSERT_EQ(desk.Elements().size(), 1);
    desk.Key(Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desk.Elements().isEmpty(); }));
}

TEST(CanvasMouse, OrderAndGridHaveTheirKeys)
{
    EditorDesk desk;
    desk.DragTool(4, {100, 100});
    desk.DragTool(4, {120, 110});
    const QString front = desk.Elements().last();
    desk.Key(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(desk.Elements().first(), front);
    desk.Key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(desk.Elements().last(), front);
    desk.Key(Qt::Key_G, Qt::ControlModifier);
    EXPECT_FALSE(desk.Main().Grid().IsShown());
    desk.Key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    desk.Drag({122, 112}, {129, 119});
    EXPECT_TRUE(desk.Elements().last().contains(" 127,117 "))
        << desk.Elements().last().toStdString() << ", without the snap";
    desk.Key(Qt::Key_G, Qt::ControlModifier); // the settings outlive the desk
    desk.Key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(desk.Main().Grid().IsShown());
}

} // namespace
