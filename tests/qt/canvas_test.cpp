// The canvas at the window: drags, releases and keys on it, and what it shows, measured in pictures of it.

#include "tests/qt/desk.h"

#include "document/view_document.h"
#include "elements/picture.h"
#include "tests/qt/test.h"
#include "widgets/round_led.h"
#include "widgets/text_label.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QMenu>
#include <QPaintEvent>
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
    desk.Click({400, 300});
    for (const QPoint& released : {QPoint(105, 105), QPoint(130, 105), QPoint(121, 121)}) { // lamp, canvas, handle
        QTest::mousePress(&View(desk), Qt::RightButton, {}, {105, 105});
        QTest::mouseRelease(&View(desk), Qt::RightButton, {}, released);
        const auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        EXPECT_TRUE(popup != nullptr && popup->actions().at(2)->toolTip() == "Pate") << "the words of the copy";
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

TEST(CanvasMouse, WhatIsDraggedOrSizedAtTheEdgeScrolls)
{
    for (const QPoint& from : {QPoint(105, 105), QPoint(120, 120)}) { // the lamp, its handle at the lower right
        EditorDesk desk;
        desk.DragTool(3, {100, 100});
        Canvas& canvas = desk.Main().ssScroll();
        const Element& lamp = *desk.Main().View().CtlOrder().Item(1);
        const QPoint corner(View(desk).width() - 4, View(desk).height() - 4);
        QTest::mousePress(&View(desk), Qt::LeftButton, {}, from);
        QTest::mouseMove(&View(desk), {200, 200});
        QTest::mouseMove(&View(desk), corner);
        EXPECT_TRUE(QTest::qWaitFor([&] { return canvas.ScrollOffsetX() >= 900 && canvas.ScrollOffsetY() >= 900; }));
        const QPointF pointer = QPointF(canvas.ScrollOffsetX(), canvas.ScrollOffsetY()) / 15 + corner;
        QTest::mouseRelease(&View(desk), Qt::LeftButton, {}, corner);
        if (from.x() == 105) {
            const QPointF landed(lamp.ObjLeft() / 15, lamp.ObjTop() / 15);
            EXPECT_LE((landed - (pointer - QPointF(5, 5))).manhattanLength(), 10) << "under the pointer";
        } else {
            EXPECT_NEAR(lamp.ObjWidth() / 15, pointer.x() - 100, 10);
        }
    }
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

TEST(CanvasMouse, OrderGridAndClipboardHaveTheirKeys)
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
    desk.Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(desk.Elements().size(), 1);
    desk.Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(desk.Elements().last().contains(" 0,0 "));
    desk.Key(Qt::Key_G, Qt::ControlModifier); // the settings outlive the desk
    desk.Key(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(desk.Main().Grid().IsShown());
}

constexpr QRgb mark = 0xFF1D66E0;
constexpr QRgb face = 0xFFD5D9DE;

QImage Shown(EditorDesk& desk)
{
    return desk.Window().Canvas().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Which part of the canvas is painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion painted;
};

TEST(CanvasPicture, MarksAndGridComeAndGoWithWhatTheUserDoes)
{
    EditorDesk desk;
    EXPECT_NE(Shown(desk).pixel(50, 5), face) << "the grid";
    desk.Main().ssScroll().ScrollTo(45, 0);
    EXPECT_NE(Shown(desk).pixel(47, 5), face) << "it scrolls";
    EXPECT_EQ(Shown(desk).pixel(50, 5), face);
    desk.Main().ssScroll().ScrollTo(0, 0);
    desk.Main().Grid().Show(false);
    EXPECT_EQ(Shown(desk).pixel(50, 5), face);

    desk.DragTool(3, {100, 100});                             // 17 x 17 at 100, 100
    const QPoint marks[] = {{93, 93}, {123, 123}, {102, 99}}; // handles, and the frame
    const auto areMarked = [&](const QImage& image) {
        return std::all_of(std::begin(marks), std::end(marks),
                           [&](const QPoint& at) { return image.pixel(at) != face; });
    };
    EXPECT_TRUE(areMarked(Shown(desk)));
    const QImage still = Shown(desk);
    QWidget* view = desk.Window().Canvas().viewport();
    QTest::mousePress(view, Qt::LeftButton, {}, {105, 105});
    QTest::mouseMove(view, {258, 252}); // lands at 250, 250
    const QImage dragged = Shown(desk);
    EXPECT_EQ(dragged.pixel(250, 250), mark);
    EXPECT_EQ(dragged.pixel(266, 266), mark);
    EXPECT_NE(dragged.pixel(255, 255), face) << "filled";
    EXPECT_NE(dragged.pixel(108, 108), still.pixel(108, 108)) << "the lamp is faded";
    EXPECT_NE(dragged.copy(250, 268, 120, 40), still.copy(250, 268, 120, 40)) << "the tip";
    QTest::mouseRelease(view, Qt::LeftButton, {}, {258, 252});
    desk.Settle();
    EXPECT_EQ(Shown(desk).pixel(258, 258), still.pixel(108, 108));
    EXPECT_EQ(Shown(desk).copy(280, 268, 120, 40), still.copy(280, 268, 120, 40)) << "outline and tip are gone";
    desk.Click({400, 300});
    EXPECT_EQ(Shown(desk).pixel(243, 243), face) << "the marks go with the selection";
    EXPECT_EQ(Shown(desk).pixel(252, 249), face);
}

TEST(CanvasPicture, WhatPaintsNothingHasADashedOutlineWhereverItsEdgesAre)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    desk.DragTool(10, {100, 100});
    Widget& label = *desk.Main().ssScroll().Back();
    static_cast<TextLabel&>(label).Set(&TextLabel::Caption, "");
    desk.Click({400, 300});
    label.Move(100 * 15, 100 * 15, 50'000 * 15, 20 * 15);
    const QImage image = Shown(desk);
    int dashes = 0;
    for (int x = 100; x < 160; ++x) {
        dashes += image.pixel(x, 100) != face ? 1 : 0;
    }
    EXPECT_NEAR(dashes, 30, 4);
    EXPECT_EQ(image.pixel(130, 110), face);
}

TEST(CanvasPicture, ThePictureIsCenteredStretchedTiledOrAtTheTopLeft)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    QImage red(30, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.setPixel(0, 0, 0xFF0000FF);
    ASSERT_TRUE(red.save(desk.PathOf("red.png")));
    clsCustView& view = desk.Main().View();
    view.Set(&clsCustView::BGPicture, desk.PathOf("red.png").toStdString());
    const QRgb blue = 0xFF0000FF;
    const QSize size = desk.Window().Canvas().viewport()->size();
    EXPECT_EQ(Shown(desk).pixel((size.width() - 30) / 2, (size.height() - 20) / 2), blue);
    EXPECT_EQ(Shown(desk).pixel(5, 5), face);
    view.Set(&clsCustView::BGPicMode, 1);
    EXPECT_EQ(Shown(desk).pixel(size.width() - 5, size.height() - 5), 0xFFFF0000);
    view.Set(&clsCustView::BGPicMode, 2);
    EXPECT_EQ(Shown(desk).pixel(60, 40), blue);
    view.Set(&clsCustView::BGPicMode, 3);
    EXPECT_EQ(Shown(desk).pixel(0, 0), blue);
    EXPECT_EQ(Shown(desk).pixel(31, 5), face);
    desk.Main().ssScroll().ScrollTo(150, 0);
    EXPECT_EQ(Shown(desk).pixel(21, 5), face) << "it scrolls";
}

TEST(CanvasPicture, AChangeRepaintsItsAreaAlone)
{
    EditorDesk desk;
    desk.DragTool(3, {100, 100});
    desk.DragTool(3, {500, 400});
    desk.Click({300, 300});
    PaintWatch watch(*desk.Window().Canvas().viewport());
    Widget* first = desk.Main().ssScroll().Back();
    static_cast<RoundLed*>(first)->Set(&RoundLed::Active, true);
    desk.Settle();
    ASSERT_FALSE(watch.painted.isEmpty());
    EXPECT_TRUE(QRect(97, 97, 23, 23).contains(watch.painted.boundingRect()));
    watch.painted = {};
    first->Set(&Widget::Left, 200.0F * 15);
    desk.Settle();
    EXPECT_TRUE(watch.painted.contains(QRect(100, 100, 17, 17)));
    EXPECT_TRUE(watch.painted.contains(QRect(200, 100, 17, 17)));
    EXPECT_FALSE(watch.painted.contains(QPoint(160, 108)));
}

} // namespace
