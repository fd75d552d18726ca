// What the canvas shows, measured in pictures of it.

#include "tests/qt/desk.h"

#include "document/view_document.h"
#include "tests/qt/test.h"
#include "widgets/round_led.h"
#include "widgets/text_label.h"

#include <QEvent>
#include <QImage>
#include <QPaintEvent>

namespace {

constexpr QRgb mark = 0xFF1D66E0;
constexpr QRgb face = 0xFFD5D9DE;

QImage Shown(EditorDesk& desk)
{
    return desk.Window().Canvas().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The colour laid over another.
QRgb Over(QRgb ground, QRgb color, double opacity)
{
    const auto mix = [opacity](int from, int to) { return qRound(from + (to - from) * opacity); };
    return qRgb(mix(qRed(ground), qRed(color)), mix(qGreen(ground), qGreen(color)), mix(qBlue(ground), qBlue(color)));
}

void ExpectNear(QRgb pixel, QRgb expected, const char* what)
{
    EXPECT_NEAR(qRed(pixel), qRed(expected), 1) << what;
    EXPECT_NEAR(qGreen(pixel), qGreen(expected), 1) << what;
    EXPECT_NEAR(qBlue(pixel), qBlue(expected), 1) << what;
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

TEST(CanvasPicture, TheSelectionHasEightHandlesAndAFrameJustOutside)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    desk.DragTool(3, {100, 100}); // 17 x 17 at 100, 100
    const QImage image = Shown(desk);
    for (const QPoint& corner : {QPoint(93, 93), QPoint(105, 93), QPoint(117, 93), QPoint(93, 105), QPoint(117, 105),
                                 QPoint(93, 117), QPoint(105, 117), QPoint(117, 117)}) {
        for (const QPoint& at : {QPoint(0, 0), QPoint(6, 0), QPoint(0, 6), QPoint(6, 6), QPoint(3, 0)}) {
            EXPECT_EQ(image.pixel(corner + at), mark) << corner.x() << ", " << corner.y();
        }
        EXPECT_EQ(image.pixel(corner + QPoint(1, 1)), 0xFFFFFFFF);
        EXPECT_EQ(image.pixel(corner + QPoint(5, 5)), 0xFFFFFFFF);
    }
    ExpectNear(image.pixel(102, 99), Over(face, mark, 0.55), "above");
    ExpectNear(image.pixel(102, 117), Over(face, mark, 0.55), "below");
    ExpectNear(image.pixel(99, 102), Over(face, mark, 0.55), "left");
    ExpectNear(image.pixel(117, 102), Over(face, mark, 0.55), "right");
    EXPECT_EQ(image.pixel(90, 90), face);
    desk.Click({400, 300});
    EXPECT_EQ(Shown(desk).pixel(93, 93), face) << "they go with the selection";
    EXPECT_EQ(Shown(desk).pixel(102, 99), face);
}

TEST(CanvasPicture, ADragShowsItsOutlineWhereItWouldLand)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    desk.DragTool(3, {100, 100});
    QWidget* view = desk.Window().Canvas().viewport();
    const QRgb solid = Shown(desk).pixel(108, 108);
    QTest::mousePress(view, Qt::LeftButton, {}, {105, 105});
    QTest::mouseMove(view, {258, 252}); // lands at 250, 250
    const QImage image = Shown(desk);
    EXPECT_EQ(image.pixel(250, 250), mark);
    EXPECT_EQ(image.pixel(266, 266), mark);
    ExpectNear(image.pixel(255, 255), Over(face, mark, 0.07), "fill");
    ExpectNear(image.pixel(108, 108), Over(face, solid, 0.45), "the lamp is faded");
    QTest::mouseRelease(view, Qt::LeftButton, {}, {258, 252});
    desk.Settle();
    EXPECT_EQ(Shown(desk).pixel(258, 258), solid);
    EXPECT_EQ(Shown(desk).pixel(300, 300), face) << "outline and tip are gone";
}

TEST(CanvasPicture, TheGridHasFaintLinesAndEachTenthIsStronger)
{
    EditorDesk desk;
    const QImage image = Shown(desk);
    const QRgb shadow = 0xFF8A929B;
    EXPECT_EQ(image.pixel(5, 5), face);
    ExpectNear(image.pixel(10, 5), Over(face, shadow, 0.12), "vertical");
    ExpectNear(image.pixel(5, 20), Over(face, shadow, 0.12), "horizontal");
    ExpectNear(image.pixel(100, 5), Over(face, shadow, 0.26), "tenth");
    EXPECT_EQ(image.pixel(0, 5), face) << "none on the axes";
    desk.Main().ssScroll().ScrollTo(45, 0);
    ExpectNear(Shown(desk).pixel(7, 5), Over(face, shadow, 0.12), "it scrolls");
}

TEST(CanvasPicture, TheGridEndsWhereTheCanvasDoes)
{
    EditorDesk desk;
    Canvas& canvas = desk.Main().ssScroll();
    canvas.SetScrollMaxima(105 * 15, 85 * 15);
    desk.Main().Grid().Load();
    desk.Main().Grid().Show(true);
    const QImage image = Shown(desk);
    EXPECT_NE(image.pixel(100, 5), face);
    EXPECT_NE(image.pixel(5, 80), face);
    for (const QPoint& beyond : {QPoint(110, 5), QPoint(5, 90), QPoint(107, 80), QPoint(100, 87)}) {
        EXPECT_EQ(image.pixel(beyond), face) << beyond.x() << ", " << beyond.y();
    }
}

TEST(CanvasPicture, WhatPaintsNothingHasADashedOutlineWhereverItsEdgesAre)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    desk.DragTool(10, {100, 100});
    Widget& label = *desk.Main().ssScroll().Back();
    static_cast<TextLabel&>(label).Set(&TextLabel::Caption, "");
    desk.Click({400, 300});
    for (const float width : {60.0F, 50'000.0F}) {
        label.Move(100 * 15, 100 * 15, width * 15, 20 * 15);
        const QImage image = Shown(desk);
        int dashes = 0;
        for (int x = 100; x < 160; ++x) {
            dashes += image.pixel(x, 100) != face ? 1 : 0;
        }
        EXPECT_NEAR(dashes, 30, 4) << width;
        EXPECT_EQ(image.pixel(130, 110), face);
    }
}

TEST(CanvasPicture, ThePictureIsCenteredStretchedTiledOrAtTheTopLeft)
{
    EditorDesk desk;
    desk.Main().Grid().Show(false);
    QImage red(30, 20, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.setPixel(0, 0, 0xFF0000FF);
    const QString file = desk.PathOf("red.png");
    ASSERT_TRUE(red.save(file));
    clsCustView& view = desk.Main().View();
    view.Set(&clsCustView::BGPicture, file.toStdString());
    const QRgb blue = 0xFF0000FF;
    const QSize size = desk.Window().Canvas().viewport()->size();
    const QPoint middle((size.width() - 30) / 2, (size.height() - 20) / 2);
    EXPECT_EQ(Shown(desk).pixel(middle), blue);
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
