// All painters at every scale and far beyond the picture's edges.

#include "tests/qt/picture_of.h"

#include "document/kinds.h"
#include "qt/canvas/canvas_painting.h"
#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/linear_gauge.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QElapsedTimer>
#include <QRegion>

namespace {

class EveryKind : public testing::Test {
protected:
    EveryKind() { AddWidgetArrays(canvas); }

    Widget& Load(const Kind& kind)
    {
        Widget& widget = canvas.FindArray(kind.array)->Load(++count);
        const std::string words = "The station is heated by its own transmitters, and its fans are off at night.";
        if (auto* label = dynamic_cast<TextLabel*>(&widget)) {
            label->Set(&TextLabel::Caption, words);
            label->Set(&TextLabel::WordWrap, true);
        } else if (auto* led = dynamic_cast<RectLed*>(&widget)) {
            led->Set(&RectLed::Caption, words);
            led->Set(&RectLed::CaptionWordWrap, true);
        } else if (auto* button = dynamic_cast<PushButton*>(&widget)) {
            button->Set(&PushButton::Caption, words);
            button->Set(&PushButton::CaptionWordWrap, 1);
        } else if (auto* gauge = dynamic_cast<ScaleGauge*>(&widget)) {
            gauge->Set(&ScaleGauge::Position, 40);
        }
        return widget;
    }

    Canvas canvas;

private:
    std::int32_t count = 0;
};

double MeanDifference(const QImage& one, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return sum / one.width() / one.height();
}

// Lines have a pixel at least, so the coarser a picture is the more they take of it; letters lie on whole pixels.
TEST_F(EveryKind, LooksTheSameFinerOrCoarser)
{
    constexpr QSize size(240, 160);
    const struct {
        qreal scale;
        double most; // of 255
    } cases[] = {{0.1, 27}, {0.2, 14.5}, {0.35, 9}, {0.5, 9}, {0.75, 9}, {1.405, 10}, {3, 3}};
    for (const Kind& kind : Kinds()) {
        const Widget& widget = Load(kind);
        const QImage fine = PictureOf(widget, QRect(QPoint(0, 0), size), size, 8, 0xFFC8C8C8);
        for (const auto& each : cases) {
            const QImage image = PictureOf(widget, QRect(QPoint(0, 0), size), size, each.scale, 0xFFC8C8C8);
            const QImage expected = fine.scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LE(MeanDifference(image, expected), each.most) << kind.array << " at " << each.scale;
        }
    }
}

// The lowest row with ink in it, as a share of the height.
double InkEnd(const QImage& image)
{
    return (BoxOf(image, [](QRgb pixel) { return qGray(pixel) < 225; }).bottom() + 1.0) / image.height();
}

TEST_F(EveryKind, BreaksItsLinesAtTheSameWords)
{
    Widget& label = Load(*FindKind("ctlLabel"));
    for (const int width : {118, 127, 140, 163}) {
        const QSize size(width, 150);
        const double plain = InkEnd(PictureOf(label, QRect(QPoint(0, 0), size), size));
        for (const qreal scale : {0.05, 0.1, 0.35, 0.5, 1.405, 2.0, 8.0}) {
            const double end = InkEnd(PictureOf(label, QRect(QPoint(0, 0), size), size, scale));
            EXPECT_NEAR(end, plain, 0.03 + 1.0 / (150 * scale)) << width << " at " << scale;
        }
    }
}

// A number that is shown at one scale is shown at all.
TEST_F(EveryKind, ShowsItsNumbersWholeOrNotAtAllAtEveryScale)
{
    constexpr Color magenta{0x00FF00FF};
    const auto pinks = [](const QImage& image) {
        double sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                sum += std::max(0, std::min(qRed(pixel), qBlue(pixel)) - qGreen(pixel));
            }
        }
        return sum / 255;
    };
    auto& display = static_cast<AnalogDisplay&>(Load(*FindKind("ctlMeterText")));
    display.Set(&AnalogDisplay::FontColor, magenta);
    display.Set(&AnalogDisplay::DisplayValue, 11'111.11); // thinner than the marks in its place
    auto& dial = static_cast<AngularGauge&>(Load(*FindKind("ctlMeterAngle")));
    auto& band = static_cast<LinearGauge&>(Load(*FindKind("ctlMeterLinear")));
    dial.Set(&AngularGauge::ShowOuterArcRadius, false); // it has the numbers' color
    for (ScaleGauge* gauge : {static_cast<ScaleGauge*>(&dial), static_cast<ScaleGauge*>(&band)}) {
        gauge->Set(&ScaleGauge::TickLabelColorValue, magenta);
        gauge->Set(&ScaleGauge::PositionMax, 1'000);
    }
    for (const Widget* widget :
         {static_cast<Widget*>(&display), static_cast<Widget*>(&dial), static_cast<Widget*>(&band)}) {
        for (int width = 40; width <= 100; width += 10) {
            const QSize size(width, widget == &dial ? 100 : 40);
            const double plain = pinks(PictureOf(*widget, QRect(QPoint(0, 0), size), size));
            for (const qreal scale : {0.3, 0.5, 0.7, 1.3, 4.0}) {
                const double shown =
                    pinks(PictureOf(*widget, QRect(QPoint(0, 0), size), size, scale)) / (scale * scale);
                EXPECT_NEAR(shown, plain, 0.55 * plain + 2) << widget->Name() << ' ' << width << " at " << scale;
            }
        }
    }
}

// Its edges may lie anywhere; the part that is visible is the same at once.
TEST_F(EveryKind, ShowsWhatIsVisibleOfIt)
{
    constexpr QSize view(60, 40);
    QElapsedTimer time;
    time.start();
    for (const Kind& kind : Kinds()) {
        Widget& widget = Load(kind);
        if (auto* label = dynamic_cast<TextLabel*>(&widget)) {
            label->Set(&TextLabel::BackStyle, std::int16_t{1});
        }
        for (const qreal scale : {1.0, 8.0}) {
            for (const QRectF& area : {QRectF(2, 2, 100'000, 100'000), QRectF(2, 2, 100'000, 36),
                                       QRectF(2, 2, 56, 100'000), QRectF(-99'970, -99'980, 100'000, 100'000)}) {
                ASSERT_TRUE(IsPaintable(area));
                const QImage image = PictureOf(widget, area, view, scale, 0xFFFF00FF);
                const QRect shown = BoxOf(image, [](QRgb pixel) { return pixel != 0xFFFF00FF; });
                EXPECT_EQ(!shown.isNull(), kind.array != "ctlLEDRound")
                    << kind.array << ", but the disc is in the middle";
            }
        }
    }
    EXPECT_LT(time.elapsed(), 20'000);
}

TEST_F(EveryKind, ALampOfAnySizeHasItsLens)
{
    auto& led = Load(*FindKind("ctlLEDRound"));
    const QImage middle = PictureOf(led, QRectF(-50'000, -50'000, 100'060, 100'040), {60, 40});
    EXPECT_GT(qGreen(middle.pixel(30, 20)), qRed(middle.pixel(30, 20)) + 50);
}

TEST_F(EveryKind, WithNumbersOfNoSizeShowsNone)
{
    for (const char* array : {"ctlMeterAngle", "ctlMeterLinear"}) {
        auto& gauge = static_cast<ScaleGauge&>(Load(*FindKind(array)));
        Font none = gauge.TickLabelFont();
        none.Size = 0;
        gauge.Set(&ScaleGauge::TickLabelFont, none);
        const auto shown = [&] { return PictureOf(gauge, QRectF(0, 0, 210, 105), {210, 105}); };
        const QImage with = shown();
        gauge.Set(&ScaleGauge::TickValuesVisible, false);
        EXPECT_EQ(with, shown()) << array;
    }
}

TEST_F(EveryKind, KeepsToItsArea)
{
    constexpr QRgb ground = 0xFFFE00FE;
    for (const Kind& kind : Kinds()) {
        const Widget& widget = Load(kind);
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            for (const QSize& size : {QSize(1, 1), QSize(2, 40), QSize(10, 10), QSize(60, 14), QSize(300, 200)}) {
                const QRectF area(QPointF(6, 6), QSizeF(size));
                const QImage image = PictureOf(widget, area, size + QSize(12, 12), scale, ground);
                const QRect box = BoxOf(image, [](QRgb pixel) { return pixel != ground; });
                const QRectF most(area.topLeft() * scale, area.size() * scale);
                EXPECT_TRUE(most.toAlignedRect().contains(box) || box.isNull())
                    << kind.array << ' ' << size.width() << " x " << size.height() << " at " << scale;
            }
        }
    }
}

void ShowValue(Widget& widget, double value)
{
    if (auto* gauge = dynamic_cast<ScaleGauge*>(&widget)) {
        gauge->Set(&ScaleGauge::Position, value);
    } else if (auto* display = dynamic_cast<AnalogDisplay*>(&widget)) {
        display->Set(&AnalogDisplay::DisplayValue, value);
    } else if (auto* led = dynamic_cast<RoundLed*>(&widget)) {
        led->Set(&RoundLed::Active, value > 50);
    } else if (auto* button = dynamic_cast<SwitchLed*>(&widget)) {
        button->Click();
    } else if (auto* label = dynamic_cast<TextLabel*>(&widget)) {
        label->Set(&TextLabel::Caption, std::to_string(value));
    }
}

// A canvas that was painted again and again, only where it said that it changed, beside one that is painted at once.
TEST_F(EveryKind, IsTheSameWhetherAllIsPaintedOrWhatChanged)
{
    constexpr QSize size(720, 250);
    int number = 0;
    for (int round = 0; round < 2; ++round) { // plain ones, and others
        for (const Kind& kind : Kinds()) {
            Widget& widget = Load(kind);
            if (auto* gauge = dynamic_cast<ScaleGauge*>(&widget); gauge != nullptr && round == 1) {
                gauge->Set(&ScaleGauge::PointerSize, 12);
                gauge->Set(&ScaleGauge::Transparent, true);
                gauge->Set(&ScaleGauge::PositionMax, 100);
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
    auto& dial = static_cast<AngularGauge&>(Load(*FindKind("ctlMeterAngle")));
    auto& band = static_cast<LinearGauge&>(Load(*FindKind("ctlMeterLinear")));
    for (const std::int16_t each : std::array<std::int16_t, 7>{-32'768, -1, 0, 1, 40, 500, 32'767}) {
        for (ScaleGauge* gauge : {static_cast<ScaleGauge*>(&dial), static_cast<ScaleGauge*>(&band)}) {
            gauge->Set(&ScaleGauge::SectionBandWidth, each);
            gauge->Set(&ScaleGauge::PointerSize, each);
            gauge->Set(&ScaleGauge::TickLabelMargin, each);
            gauge->Set(&ScaleGauge::TickLabelPrecision, each);
            gauge->Set(&ScaleGauge::Position, each == 40 ? none : 1e308);
            gauge->Set(&ScaleGauge::PositionMax, each == 0 ? none : 3e38);
        }
        dial.Set(&AngularGauge::ArcRadius, each);
        dial.Set(&AngularGauge::PointerMargin, static_cast<std::int16_t>(-each - 1));
        dial.Set(&AngularGauge::ShowHub, true);
        dial.Set(&AngularGauge::HubSize, each);
        dial.Set(&AngularGauge::ArcRangeDegrees, each);
        band.Set(&LinearGauge::PointerOffset, each);
        band.Set(&LinearGauge::EndsMargin, each);
        for (const QSize& size : {QSize(1, 1), QSize(2, 30), QSize(10, 10), QSize(1'000, 1'000)}) {
            PictureOf(dial, QRect(QPoint(0, 0), size), size);
            PictureOf(band, QRect(QPoint(0, 0), size), size);
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
