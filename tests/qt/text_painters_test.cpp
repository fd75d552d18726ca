// Where the texts on instruments stand, measured in pictures of them.

#include "tests/qt/picture_of.h"

#include "tests/qt/test.h"

namespace {

constexpr Color magenta{0x00FF00FF}; // which nothing but the text has

struct ATextOnAnInstrument : testing::Test, Instruments {};

QRect TextIn(const QImage& image)
{
    return BoxOf(image, [](QRgb pixel) { return qRed(pixel) > 150 && qBlue(pixel) > 150 && qGreen(pixel) < 130; });
}

TEST_F(ATextOnAnInstrument, KeepsItsDistanceFromTheSideWhereItStandsAtEveryScale)
{
    const auto led = [&](std::int32_t alignment) -> const Widget& {
        using R = RectLed;
        return Add("ctlLEDRect", {With(&R::Caption, "HIH"), With(&R::CaptionOffColor, magenta),
                                  With(&R::CaptionAlignment, alignment)});
    };
    const auto label = [&](std::int16_t alignment, std::int16_t border, std::int16_t appearance) -> const Widget& {
        using T = TextLabel;
        return Add("ctlLabel", {With(&T::Caption, "HIH"), With(&T::ForeColor, magenta), With(&T::Alignment, alignment),
                                With(&T::BorderStyle, border), With(&T::Appearance, appearance)});
    };
    const auto number = [&](std::int32_t alignment) -> const Widget& {
        using N = AnalogDisplay;
        return Add("ctlMeterText",
                   {With(&N::DisplayValue, 1'111), With(&N::FontColor, magenta), With(&N::Alignment, alignment)});
    };
    const auto panel = [&](std::int32_t place) -> const Widget& {
        using P = Panel;
        return Add("ctlBlnPic",
                   {With(&P::Caption, "HIH"), With(&P::ForeColor, magenta), With(&P::CaptionAlignment, place)});
    };
    const struct {
        const Widget& widget;
        int inset; // from the left; from the right if it is below 0; 0 for the middle
    } cases[] = {{led(lamp_alignments::center), 0},          {led(lamp_alignments::left), 6},
                 {led(lamp_alignments::right), -6},          {label(label_alignments::left, 1, 0), 3},
                 {label(label_alignments::left, 1, 1), 4},   {label(label_alignments::right, 1, 1), -4},
                 {label(label_alignments::center, 0, 0), 0}, {number(number_alignments::left), 5},
                 {number(number_alignments::right), -5},     {panel(face_places::leftMiddle), 6},
                 {panel(face_places::rightMiddle), -6},      {panel(face_places::centerMiddle), 0}};
    for (const auto& each : cases) {
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            const QImage image = PictureOf(each.widget, {105, 19}, scale);
            const QRect text = TextIn(image);
            const int right = image.width() - 1 - text.right();
            const double inset = each.inset == 0 ? right : (std::abs(each.inset) + 0.6) * scale;
            EXPECT_NEAR(each.inset >= 0 ? text.left() : right, inset, each.inset == 0 ? 1.5 : 1.3 * scale)
                << &each - cases << " at " << scale;
            EXPECT_NEAR(text.top() + text.bottom(), image.height() - 1, 2) << &each - cases << " at " << scale;
        }
    }
    const Widget& high = label(label_alignments::left, 0, 0);
    EXPECT_EQ(TextIn(PictureOf(high, {105, 60})).bottom(), 9) << "at the top of a high box";
}

TEST_F(ATextOnAnInstrument, GetsAnOutlineWhereItsGroundIsNearlyAsBright)
{
    const auto darkest = [&](Color lamp) {
        const Widget& led = Add("ctlLEDRect", {With(&RectLed::Active, true), With(&RectLed::ActiveColor, lamp),
                                               With(&RectLed::Caption, "MMM"), With(&RectLed::BevelStyle, bevels::none),
                                               With(&RectLed::CaptionOnColor, Color{0x00FFFFFF})});
        int least = 255;
        BoxOf(PictureOf(led, {60, 25}).copy(10, 8, 40, 9),
              [&](QRgb pixel) { return least = std::min(least, qGray(pixel)), false; });
        return least;
    };
    EXPECT_LT(darkest(Color{0x0000A8F2}), qGray(qRgb(0xF2, 0xA8, 0)) * 0.75);
    EXPECT_GT(darkest(Color{0x00800000}), qGray(qRgb(0, 0, 0x80)) * 0.75) << "enough contrast needs none";
}

TEST_F(ATextOnAnInstrument, WrapsBetweenWordsAndAtItsBreaksAndIsUnderlinedBelow)
{
    Widget& label =
        Add("ctlLabel", {With(&TextLabel::Caption, "HHHH HHHH\r\nHHHH"), With(&TextLabel::ForeColor, magenta)});
    const auto bottom = [&] { return TextIn(PictureOf(label, {60, 80})).bottom(); };
    const int two = bottom();
    EXPECT_EQ((two - 9) / 13 + 1, 2);
    Font font;
    font.Underline = true;
    label.Set(&TextLabel::Font, font);
    EXPECT_GT(bottom(), two);
    label.Set(&TextLabel::WordWrap, true);
    EXPECT_EQ((bottom() - 9) / 13 + 1, 3);
}

TEST_F(ATextOnAnInstrument, IsAWholeNumberOrNone)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const std::int16_t offset : std::array<std::int16_t, 3>{-60, 0, 60}) {
            const Widget& dial =
                Add("ctlMeterAngle",
                    {With(&ScaleGauge::TickLabelColorValue, magenta), With(&ScaleGauge::PositionMax, 10'000),
                     With(&AngularGauge::ShowOuterArcRadius, false), With(&ScaleGauge::BorderStyle, bevels::lowered),
                     With(&AngularGauge::OffsetX, offset), With(&AngularGauge::OffsetY, offset)});
            const QImage image = PictureOf(dial, {105, 105}, scale);
            const auto kept = static_cast<int>(std::round(3 * scale));
            const QRect numbers = TextIn(image);
            EXPECT_TRUE(image.rect().adjusted(kept, kept, -kept, -kept).contains(numbers)) << offset << ", " << scale;
            EXPECT_GT(numbers.width(), 40 * scale) << "both of them";
        }
    }
    const auto shown = [&](double value) {
        return PictureOf(
            Add("ctlMeterText", {With(&AnalogDisplay::FontColor, magenta), With(&AnalogDisplay::DisplayValue, value)}),
            {30, 19});
    };
    EXPECT_EQ(shown(123'456.5), shown(999'999.5)) << "marks, not digits";
    EXPECT_LT(TextIn(shown(123'456.5)).right(), 27);
}

} // namespace
