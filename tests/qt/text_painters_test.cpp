// Where the texts on instruments stand, measured in pictures of them.

#include "tests/qt/picture_of.h"

#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/panel.h"
#include "widgets/rect_led.h"
#include "widgets/text_label.h"

namespace {

constexpr Color magenta{0x00FF00FF}; // which nothing but the text has

QImage Drawn(const Widget& widget, const QSize& size, qreal scale = 1)
{
    return PictureOf(widget, QRect(QPoint(0, 0), size), size, scale);
}

QRect TextIn(const QImage& image)
{
    return BoxOf(image, [](QRgb pixel) { return qRed(pixel) > 150 && qBlue(pixel) > 150 && qGreen(pixel) < 130; });
}

template <class W> std::unique_ptr<Widget> Made(std::initializer_list<Write> settings)
{
    auto widget = std::make_unique<W>();
    for (const Write& write : settings) {
        write(*widget);
    }
    return widget;
}

TEST(ATextOnAnInstrument, KeepsItsDistanceFromTheSideWhereItStandsAtEveryScale)
{
    using R = RectLed;
    using T = TextLabel;
    using N = AnalogDisplay;
    const auto led = [](std::int32_t alignment) {
        return Made<R>(
            {With(&R::Caption, "HIH"), With(&R::CaptionOffColor, magenta), With(&R::CaptionAlignment, alignment)});
    };
    const auto label = [](std::int16_t alignment, std::int16_t border, std::int16_t appearance) {
        return Made<T>({With(&T::Caption, "HIH"), With(&T::ForeColor, magenta), With(&T::Alignment, alignment),
                        With(&T::BorderStyle, border), With(&T::Appearance, appearance)});
    };
    const auto number = [](std::int32_t alignment) {
        return Made<N>({With(&N::DisplayValue, 1'111), With(&N::FontColor, magenta), With(&N::Alignment, alignment)});
    };
    const auto panel = [](std::int32_t place) {
        return Made<Panel>(
            {With(&Panel::Caption, "HIH"), With(&Panel::ForeColor, magenta), With(&Panel::CaptionAlignment, place)});
    };
    const struct {
        std::unique_ptr<Widget> widget;
        int inset; // from the left; from the right if it is below 0; 0 for the middle
    } cases[] = {{led(lamp_alignments::center), 0},          {led(lamp_alignments::left), 6},
                 {led(lamp_alignments::right), -6},          {label(label_alignments::left, 1, 0), 3},
                 {label(label_alignments::left, 1, 1), 4},   {label(label_alignments::right, 1, 1), -4},
                 {label(label_alignments::center, 0, 0), 0}, {number(number_alignments::left), 5},
                 {number(number_alignments::right), -5},     {panel(face_places::leftMiddle), 6},
                 {panel(face_places::rightMiddle), -6},      {panel(face_places::centerMiddle), 0}};
    for (const auto& each : cases) {
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            const QImage image = Drawn(*each.widget, {105, 19}, scale);
            const QRect text = TextIn(image);
            const int right = image.width() - 1 - text.right();
            const auto row = &each - cases;
            if (each.inset == 0) {
                EXPECT_NEAR(text.left(), right, 1.5) << row << " at " << scale;
            } else {
                EXPECT_NEAR(each.inset > 0 ? text.left() : right, (std::abs(each.inset) + 0.6) * scale, 1.3 * scale)
                    << row << " at " << scale;
            }
            EXPECT_NEAR(text.top() + text.bottom(), image.height() - 1, 2) << row << " at " << scale;
        }
    }
    EXPECT_EQ(TextIn(Drawn(*label(label_alignments::left, 0, 0), {105, 60})).bottom(), 9) << "at the top of a high box";
}

TEST(ATextOnAnInstrument, GetsAnOutlineWhereItsGroundIsNearlyAsBright)
{
    const auto darkest = [](Color lamp) {
        const auto led = Made<RectLed>({With(&RectLed::Active, true), With(&RectLed::ActiveColor, lamp),
                                        With(&RectLed::Caption, "MMM"), With(&RectLed::BevelStyle, bevels::none),
                                        With(&RectLed::CaptionOnColor, Color{0x00FFFFFF})});
        const QImage image = Drawn(*led, {60, 25}).copy(10, 8, 40, 9);
        int least = 255;
        BoxOf(image, [&](QRgb pixel) { return least = std::min(least, qGray(pixel)), false; });
        return least;
    };
    EXPECT_LT(darkest(Color{0x0000A8F2}), qGray(qRgb(0xF2, 0xA8, 0)) * 0.75);
    EXPECT_GT(darkest(Color{0x00800000}), qGray(qRgb(0, 0, 0x80)) * 0.75) << "enough contrast needs none";
}

TEST(ATextOnAnInstrument, WrapsBetweenWordsAndAtItsBreaks)
{
    TextLabel label;
    label.Set(&TextLabel::Caption, "HHHH HHHH\r\nHHHH");
    label.Set(&TextLabel::ForeColor, magenta);
    const auto lines = [&] { return (TextIn(Drawn(label, {60, 80})).bottom() - 9) / 13 + 1; };
    EXPECT_EQ(lines(), 2);
    label.Set(&TextLabel::WordWrap, true);
    EXPECT_EQ(lines(), 3);
}

TEST(ANumberOnAnInstrument, IsShownWholeWhereverItHangs)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const std::int16_t offset : std::array<std::int16_t, 3>{-60, 0, 60}) {
            const auto dial = Made<AngularGauge>(
                {With(&ScaleGauge::TickLabelColorValue, magenta), With(&ScaleGauge::PositionMax, 10'000),
                 With(&ScaleGauge::BorderStyle, bevels::lowered), With(&AngularGauge::OffsetX, offset),
                 With(&AngularGauge::OffsetY, offset)});
            const QImage image = Drawn(*dial, {105, 105}, scale);
            const auto kept = static_cast<int>(std::round(3 * scale));
            const QRect numbers = TextIn(image);
            EXPECT_TRUE(image.rect().adjusted(kept, kept, -kept, -kept).contains(numbers)) << offset << ", " << scale;
            EXPECT_GT(numbers.width(), 40 * scale) << "both of them";
        }
    }
}

TEST(ANumberOnAnInstrument, IsNeverShownInPart)
{
    AnalogDisplay display;
    display.Set(&AnalogDisplay::FontColor, magenta);
    const auto shown = [&](double value) {
        display.Set(&AnalogDisplay::DisplayValue, value);
        return Drawn(display, {30, 19});
    };
    EXPECT_EQ(shown(123'456.5), shown(999'999.5)) << "marks, not digits";
    EXPECT_LT(TextIn(shown(123'456.5)).right(), 27);
}

} // namespace
