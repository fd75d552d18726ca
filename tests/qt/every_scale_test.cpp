// All painters at every scale and far beyond the picture's edges.

#include "tests/qt/picture_of.h"

#include "qt/canvas/canvas_painting.h"
#include "tests/qt/test.h"

#include <QElapsedTimer>
#include <QRegion>

namespace {

constexpr QRgb ground = 0xFFFE00FE;

class EveryKind : public testing::Test, protected Instruments {
protected:
    // Where the widget has the property.
    template <class W, FixedString Name, class T>
    static void Try(Widget& widget, Property<Name, T> W::*property, std::type_identity_t<T> value)
    {
        if (dynamic_cast<W*>(&widget) != nullptr) {
            widget.Set(property, value);
        }
    }

    Widget& Load(std::string_view array)
    {
        Widget& widget = Add(array);
        const std::string words = "The station is heated by its own transmitters, and its fans are off at night.";
        Try(widget, &TextLabel::Caption, words);
        Try(widget, &TextLabel::WordWrap, true);
        Try(widget, &RectLed::Caption, words);
        Try(widget, &RectLed::CaptionWordWrap, true);
        Try(widget, &PushButton::Caption, words);
        Try(widget, &PushButton::CaptionWordWrap, 1);
        Try(widget, &ScaleGauge::Position, 40);
        return widget;
    }

    static void ShowValue(Widget& widget, double value)
    {
        Try(widget, &ScaleGauge::Position, value);
        Try(widget, &AnalogDisplay::DisplayValue, value);
        Try(widget, &RoundLed::Active, value > 50);
        Try(widget, &SwitchLed::Active, value > 50);
        Try(widget, &TextLabel::Caption, std::to_string(value));
    }
};

// Lines have a pixel at least, so the coarser a picture is the more they take of it; letters lie on whole pixels.
TEST_F(EveryKind, LooksTheSameFinerOrCoarser)
{
    constexpr QSize size(240, 160);
    const struct {
        qreal scale;
        double most; // of 255
    } cases[] = {{0.1, 27}, {0.2, 14.5}, {0.35, 9}, {0.5, 9}, {0.75, 9}, {1.405, 10}, {3, 3}};
    for (const Kind& kind : Kinds()) {
        const Widget& widget = Load(kind.array);
        const QImage fine = PictureOf(widget, size, 8, 0xFFC8C8C8);
        for (const auto& each : cases) {
            const QImage image = PictureOf(widget, size, each.scale, 0xFFC8C8C8);
            const QImage expected = fine.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LE(MeanDifference(image, expected), each.most) << kind.array << " at " << each.scale;
        }
    }
}

// By the lowest row with ink in it, as a share of the height.
TEST_F(EveryKind, BreaksItsLinesAtTheSameWords)
{
    const auto inkEnd = [](const QImage& image) {
        return (BoxOf(image, [](QRgb pixel) { return qGray(pixel) < 225; }).bottom() + 1.0) / image.height();
    };
    const Widget& label = Load("ctlLabel");
    for (const int width : {118, 127, 140, 163}) {
        const double plain = inkEnd(PictureOf(label, {width, 150}));
        for (const qreal scale : {0.05, 0.1, 0.35, 0.5, 1.405, 2.0, 8.0}) {
            const double end = inkEnd(PictureOf(label, {width, 150}, scale));
            EXPECT_NEAR(end, plain, 0.03 + 1.0 / (150 * scale)) << width << " at " << scale;
        }
    }
}

// A number that is shown at one scale is shown at all.
TEST_F(EveryKind, ShowsItsNumbersWholeOrNotAtAllAtEveryScale)
{
    constexpr Color magenta{0x00FF00FF};
    for (const char* array : {"ctlMeterText", "ctlMeterAngle", "ctlMeterLinear"}) {
        Widget& widget = Load(array);
        Try(widget, &AnalogDisplay::FontColor, magenta);
        Try(widget, &AnalogDisplay::DisplayValue, 11'111.11);  // thinner than the marks in its place
        Try(widget, &AngularGauge::ShowOuterArcRadius, false); // it has the numbers' color
        Try(widget, &ScaleGauge::TickLabelColorValue, magenta);
        Try(widget, &ScaleGauge::PositionMax, 1'000);
        for (int width = 40; width <= 100; width += 10) {
            const QSize size(width, widget.Kind() == WidgetKind::AngularGauge ? 100 : 40);
            const double plain = PinkOf(PictureOf(widget, size));
            for (const qreal scale : {0.3, 0.5, 0.7, 1.3, 4.0}) {
                const double shown = PinkOf(PictureOf(widget, size, scale)) / (scale * scale);
                EXPECT_NEAR(shown, plain, 0.55 * plain + 2) << array << ' ' << width << " at " << scale;
            }
        }
    }
}

// Its edges may lie anywhere; what is visible is in its area, and comes at once. Of a lamp that is the lens.
TEST_F(EveryKind, ShowsWhatIsVisibleOfItAndKeepsToItsArea)
{
    const QRectF cases[] = {{2, 2, 100'000, 100'000},
                            {2, 2, 100'000, 36},
                            {2, 2, 56, 100'000},
                            {-99'970, -99'980, 100'000, 100'000},
                            {-50'000, -50'000, 1e5, 1e5},
                            {6, 6, 1, 1},
                            {6, 6, 2, 30},
                            {6, 6, 10, 10},
                            {6, 6, 50, 14},
                            {6, 6, 45, 28}};
    QElapsedTimer time;
    time.start();
    for (const Kind& kind : Kinds()) {
        Widget& widget = Load(kind.array);
        Try(widget, &TextLabel::BackStyle, std::int16_t{1});
        for (const qreal scale : {1.0, 1.5, 2.0, 8.0}) {
            for (const QRectF& area : cases) {
                ASSERT_TRUE(IsPaintable(area));
                const QImage image = PictureOf(widget, area, {60, 40}, scale, ground);
                const QRect shown = BoxOf(image, [](QRgb pixel) { return pixel != ground; });
                const QRectF most(area.topLeft() * scale, area.size() * scale);
                const auto row = &area - cases;
                EXPECT_TRUE(shown.isNull() || most.toAlignedRect().contains(shown))
                    << kind.array << ' ' << row << " at " << scale;
                const QRgb middle = image.pixel(image.rect().center());
                EXPECT_TRUE(row != 4 || kind.array != "ctlLEDRound" || qGreen(middle) > qRed(middle) + 50);
                const bool isCornerOfLens = kind.array == "ctlLEDRound" && row < 4;
                EXPECT_TRUE(row > 4 || shown.isNull() == isCornerOfLens) << kind.array << ' ' << row;
            }
        }
    }
    EXPECT_LT(time.elapsed(), 20'000);
}

// A canvas that was painted again and again, only where it said that it changed, beside one that is painted at once.
TEST_F(EveryKind, IsTheSameWhetherAllIsPaintedOrWhatChanged)
{
    constexpr QSize size(720, 250);
    int number = 0;
    for (int round = 0; round < 2; ++round) { // plain ones, and others
        for (const Kind& kind : Kinds()) {
            Widget& widget = Load(kind.array);
            if (round == 1) {
                Try(widget, &ScaleGauge::PointerSize, 12);
                Try(widget, &ScaleGauge::Transparent, true);
                Try(widget, &ScaleGauge::PositionMax, 100);
            }
            const float side = round == 0 ? 1'575.0F : 905.0F;
            widget.Move(static_cast<float>(number % 7) * 1'540 + 8, static_cast<float>(number / 7) * 900, side, side);
            widget.Set(&Widget::Visible, true);
            ++number;
        }
    }
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const auto paint = [&](CanvasPainter& painter, QImage& image, const QRegion& region) {
            QPainter onImage(&image);
            onImage.setClipRegion(region);
            painter.Paint(onImage, size, region, {.isEdited = false});
        };
        QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        CanvasPainter again(canvas);
        paint(again, image, QRect(QPoint(0, 0), size));
        QRegion changed;
        const Subscription subscription = canvas.Changed.Subscribe(
            [&](const Area& area) { changed |= PixelsOf(area).toAlignedRect().adjusted(-1, -1, 1, 1); });
        for (const double value : {3.0, 50.0, 51.0, 400.0, -3.0, 77.7}) {
            changed = QRegion();
            for (Widget* widget = canvas.Back(); widget != nullptr; widget = widget->Above()) {
                ShowValue(*widget, value);
            }
            paint(again, image, changed);
            QImage whole = image;
            whole.fill(Qt::red);
            CanvasPainter atOnce(canvas);
            paint(atOnce, whole, QRect(QPoint(0, 0), size));
            ASSERT_EQ(image, whole) << value << " at " << scale;
        }
    }
}

TEST_F(EveryKind, ComesAtOnceForAnySizesAndNumbers)
{
    QElapsedTimer time;
    time.start();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const char* array : {"ctlMeterAngle", "ctlMeterLinear"}) {
        Widget& gauge = Load(array);
        for (const std::int16_t each : std::array<std::int16_t, 7>{-32'768, -1, 0, 1, 40, 500, 32'767}) {
            Try(gauge, &ScaleGauge::SectionBandWidth, each);
            Try(gauge, &ScaleGauge::PointerSize, each);
            Try(gauge, &ScaleGauge::TickLabelMargin, each);
            Try(gauge, &ScaleGauge::TickLabelPrecision, each);
            Try(gauge, &ScaleGauge::Position, each == 40 ? none : 1e308);
            Try(gauge, &ScaleGauge::PositionMax, each == 0 ? none : 3e38);
            Try(gauge, &AngularGauge::ArcRadius, each);
            Try(gauge, &AngularGauge::PointerMargin, static_cast<std::int16_t>(-each - 1));
            Try(gauge, &AngularGauge::HubSize, each);
            Try(gauge, &AngularGauge::ArcRangeDegrees, each);
            Try(gauge, &LinearGauge::PointerOffset, each);
            Try(gauge, &LinearGauge::EndsMargin, each);
            for (const QSize& size : {QSize(1, 1), QSize(2, 30), QSize(10, 10), QSize(1'000, 1'000)}) {
                PictureOf(gauge, size);
            }
        }
    }
    EXPECT_LT(time.elapsed(), 10'000);
}

TEST(KeptPictures, TakeNoMoreThanTheyMayAndForgetWhatWasUsedLeast)
{
    Kept<QImage> kept(10 * 400);
    int drawn = 0;
    const auto show = [&](int number) {
        kept.Of(KeyOf(number), [&] { return ++drawn, QImage(10, 10, QImage::Format_RGB32); });
        EXPECT_LE(kept.Bytes(), 10 * 400);
    };
    for (int number = 0; number < 30; ++number) {
        show(number);
        show(0);
    }
    EXPECT_EQ(drawn, 30);
    show(1);
    EXPECT_EQ(drawn, 31);
}

} // namespace
