// All painters at every scale and far beyond the picture's edges.

#include "tests/qt/picture_of.h"

#include "document/kinds.h"
#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/linear_gauge.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QElapsedTimer>

namespace {

class EveryKind : public testing::Test {
protected:
    EveryKind() { AddWidgetArrays(canvas); }

    Widget& Load(const Kind& kind)
    {
        Widget& widget = canvas.FindArray(kind.array)->Load(1);
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
    int last = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            last = qGray(image.pixel(x, y)) < 225 ? y : last;
        }
    }
    return (last + 1.0) / image.height();
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
                int shown = 0;
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x) {
                        shown += image.pixel(x, y) != 0xFFFF00FF ? 1 : 0;
                    }
                }
                EXPECT_EQ(shown > 0, kind.array != "ctlLEDRound") << kind.array << ", but the disc is in the middle";
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

} // namespace
