// The meters are measured in pictures of them.

#include "qt/painters/analog_display_painter.h"
#include "qt/painters/angular_gauge_painter.h"
#include "qt/painters/linear_gauge_painter.h"
#include "qt/painters/painters.h"
#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/linear_gauge.h"
#include "widgets/widget_array.h"

#include <QElapsedTimer>
#include <QImage>

#include <numbers>

namespace {

constexpr QRgb ground = 0xFFF4F4F4;
constexpr Color blue{0x00FF0000};
constexpr Color grounds{0x00F4F4F4};

template <class Paint> QImage Drawn(const QSize& size, qreal scale, Paint paint)
{
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    QPainter painter(&image);
    paint(painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

QImage Drawn(const AngularGauge& gauge, const QSize& size = {105, 105}, qreal scale = 1)
{
    return Drawn(size, scale, [&](QPainter& painter, const QRectF& area) { PaintAngularGauge(painter, gauge, area); });
}

QImage Drawn(const LinearGauge& gauge, const QSize& size, qreal scale = 1)
{
    return Drawn(size, scale, [&](QPainter& painter, const QRectF& area) { PaintLinearGauge(painter, gauge, area); });
}

void ColorSections(ScaleGauge& gauge, const std::array<int, 5>& sections)
{
    gauge.Set(&ScaleGauge::SectionColor1, Color{sections[0]});
    gauge.Set(&ScaleGauge::SectionColor2, Color{sections[1]});
    gauge.Set(&ScaleGauge::SectionColor3, Color{sections[2]});
    gauge.Set(&ScaleGauge::SectionColor4, Color{sections[3]});
    gauge.Set(&ScaleGauge::SectionColor5, Color{sections[4]});
}

constexpr std::array sections = {0x0000FF, 0x0080FF, 0x00FFFF, 0x80FF00, 0x00FF00};

QRgb AsSeen(int color)
{
    return qRgb(color & 0xFF, color >> 8 & 0xFF, color >> 16);
}

// Without numbers and with a pointer in a colour of its own.
void MakePlain(ScaleGauge& gauge)
{
    ColorSections(gauge, sections);
    gauge.Set(&ScaleGauge::PointerColor, blue);
    gauge.Set(&ScaleGauge::TickValuesVisible, false);
    gauge.Set(&ScaleGauge::BackGroundColor, grounds);
}

AngularGauge PlainDial()
{
    AngularGauge gauge;
    MakePlain(gauge);
    gauge.Set(&ScaleGauge::PointerSize, std::int16_t{4});
    gauge.Set(&AngularGauge::ShowHub, false);
    return gauge;
}

LinearGauge PlainBand(bool isVertical)
{
    LinearGauge gauge;
    MakePlain(gauge);
    gauge.Set(&LinearGauge::Orientation, isVertical ? orientations::vertical : orientations::horizontal);
    gauge.Set(&ScaleGauge::SectionBandWidth, std::int16_t{20});
    return gauge;
}

bool IsBlue(QRgb pixel)
{
    return qBlue(pixel) > 200 && qRed(pixel) < 90 && qGreen(pixel) < 90;
}

// The angle from the middle to the blue pixels that are far out.
double PointerAngleIn(const QImage& image)
{
    const QPointF middle(image.width() / 2.0, image.height() / 2.0);
    QPointF sum;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QPointF place = QPointF(x + 0.5, y + 0.5) - middle;
            if (IsBlue(image.pixel(x, y)) && std::hypot(place.x(), place.y()) > image.width() / 5.0) {
                sum += place;
            }
        }
    }
    return std::atan2(-sum.y(), sum.x()) * 180 / std::numbers::pi;
}

struct DialCase {
    std::int16_t start;
    std::int16_t range;
    bool isReversed;
};
constexpr DialCase dials[] = {{225, 270, false}, {225, 270, true}, {180, 180, false}, {90, 360, false}, {0, 90, true}};

TEST(AnAngularMeterPicture, TurnsItsPointerToTheValueAndParksItBeyondTheEnds)
{
    const struct {
        double value;
        double way;
        double beyond; // degrees
    } values[] = {{0, 0, 0}, {33, 0.33, 0}, {100, 1, 0}, {-5, 0, -4}, {1e9, 1, 4}};
    for (const DialCase& dial : dials) {
        for (const auto& each : values) {
            for (std::int32_t style = 0; style < 4; ++style) {
                AngularGauge gauge = PlainDial();
                gauge.Set(&AngularGauge::ArcStartDegrees, dial.start);
                gauge.Set(&AngularGauge::ArcRangeDegrees, dial.range);
                gauge.Set(&ScaleGauge::ReverseScaleFlag, dial.isReversed);
                gauge.Set(&AngularGauge::PointerStyleCode, style);
                gauge.Set(&ScaleGauge::Position, each.value);
                const double way = dial.isReversed ? 1 - each.way : each.way;
                const double beyond = dial.isReversed ? -each.beyond : each.beyond;
                const double off = PointerAngleIn(Drawn(gauge)) - (dial.start - dial.range * way - beyond);
                EXPECT_LT(std::abs(std::remainder(off, 360)), 1.2)
                    << each.value << " in style " << style << " of " << dial.start << ", " << dial.range;
            }
        }
    }
}

// Where the line through the band stands.
int HairlineIn(const QImage& image, bool isVertical)
{
    const int across = isVertical ? image.width() / 2 - image.width() / 5 : image.height() / 2 - image.height() / 5;
    for (int along = 0; along < (isVertical ? image.height() : image.width()); ++along) {
        if (IsBlue(isVertical ? image.pixel(across, along) : image.pixel(along, across))) {
            return along;
        }
    }
    return -1;
}

TEST(ALinearMeterPicture, MarksTheValueToThePixel)
{
    const struct {
        double value;
        int place; // of a horizontal one
    } values[] = {{0, 15}, {46, 97}, {100, 194}, {-1, 8}, {1e9, 201}};
    for (const bool isVertical : {false, true}) {
        for (const bool isReversed : {false, true}) {
            for (const auto& each : values) {
                LinearGauge gauge = PlainBand(isVertical);
                gauge.Set(&ScaleGauge::ReverseScaleFlag, isReversed);
                gauge.Set(&ScaleGauge::Position, each.value);
                const QImage image = Drawn(gauge, isVertical ? QSize(41, 210) : QSize(210, 41));
                const int place = isVertical == isReversed ? each.place : 209 - each.place;
                EXPECT_NEAR(HairlineIn(image, isVertical), place, 0)
                    << each.value << (isVertical ? ", vertical" : "") << (isReversed ? ", reversed" : "");
            }
        }
    }
}

TEST(ALinearMeterPicture, ShowsItsSectionsPartedByTheGroundAtEveryScale)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const auto line = static_cast<int>(std::max(1.0, std::round(scale)));
        LinearGauge gauge = PlainBand(false);
        gauge.Set(&ScaleGauge::Position, 50);
        const QImage image = Drawn(gauge, {210, 41}, scale);
        const double low = std::round(15 * scale);
        const double high = image.width() - low;
        const auto pixel = [&](int boundary) {
            return static_cast<int>(std::round(low + (high - low) * boundary / 5));
        };
        const int row = image.height() / 2 + 3 * line;
        for (int section = 0; section < 5; ++section) {
            const QRgb color = AsSeen(sections[static_cast<std::size_t>(section)]);
            EXPECT_EQ(image.pixel(pixel(section) + line, row), color) << section << " at " << scale;
            EXPECT_EQ(image.pixel(pixel(section + 1) - line - 1, row), color) << section << " at " << scale;
            if (section < 4) {
                EXPECT_EQ(image.pixel(pixel(section + 1) - 1, row), ground) << section << " at " << scale;
            }
        }
    }
}

TEST(AMeterPicture, MutedShowsItsBandOnItsOwnGrey)
{
    AngularGauge dial = PlainDial();
    const int grey = colors::buttonFace.value;
    ColorSections(dial, {grey, grey, grey, grey, grey});
    dial.Set(&ScaleGauge::BackGroundColor, colors::buttonFace);
    dial.Set(&AngularGauge::PointerMargin, std::int16_t{30});
    dial.Set(&ScaleGauge::SectionBandWidth, std::int16_t{8});
    const QImage image = Drawn(dial);
    EXPECT_EQ(image.pixel(52, 16), 0xFFD5D9DE) << "the middle of the band";
    EXPECT_LT(qGray(image.pixel(52, 12)), 180) << "its outline";
    EXPECT_LT(qGray(image.pixel(52, 20)), 180);
}

// All pixels in the colour of the numbers, none of which anything else has.
QRect NumbersIn(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qRed(pixel) > 150 && qBlue(pixel) > 150 && qGreen(pixel) < 120) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

TEST(AMeterPicture, ShowsItsNumbersWholeWhereverTheyHang)
{
    const Color magenta{0x00FF00FF};
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const std::int16_t offset : std::array<std::int16_t, 3>{-60, 0, 60}) {
            AngularGauge dial = PlainDial();
            dial.Set(&ScaleGauge::TickValuesVisible, true);
            dial.Set(&ScaleGauge::TickLabelColorValue, magenta);
            dial.Set(&ScaleGauge::PositionMax, 10'000);
            dial.Set(&ScaleGauge::BorderStyle, bevels::lowered);
            dial.Set(&AngularGauge::OffsetX, offset);
            dial.Set(&AngularGauge::OffsetY, offset);
            const QImage image = Drawn(dial, {105, 105}, scale);
            const auto kept = static_cast<int>(std::round(3 * scale));
            const QRect numbers = NumbersIn(image);
            EXPECT_TRUE(image.rect().adjusted(kept, kept, -kept, -kept).contains(numbers)) << offset << ", " << scale;
            EXPECT_GT(numbers.width(), 40 * scale) << "both of them";
        }
        LinearGauge band = PlainBand(true);
        band.Set(&ScaleGauge::TickValuesVisible, true);
        band.Set(&ScaleGauge::TickLabelColorValue, magenta);
        const QImage image = Drawn(band, {41, 210}, scale);
        EXPECT_NEAR(NumbersIn(image).width(), 18 * scale, 2) << "100 beside a band that gave way";
    }
}

TEST(ANumberPicture, NeverShowsAPartOfANumber)
{
    AnalogDisplay display;
    display.Set(&AnalogDisplay::FontColor, Color{0x00FF00FF});
    const auto numbers = [&](double value, int width) {
        display.Set(&AnalogDisplay::DisplayValue, value);
        return NumbersIn(Drawn({width, 19}, 1, [&](QPainter& painter, const QRectF& area) {
            PaintAnalogDisplay(painter, display, area);
        }));
    };
    display.Set(&AnalogDisplay::Alignment, number_alignments::right);
    EXPECT_NEAR(numbers(1234.5, 105).right(), 99, 1) << "five pixels from the edge";
    display.Set(&AnalogDisplay::Alignment, number_alignments::left);
    EXPECT_NEAR(numbers(1234.5, 105).left(), 5, 1);
    EXPECT_EQ(numbers(123'456.5, 30), numbers(999'999.5, 30)) << "marks, not digits";
    EXPECT_LT(numbers(123'456.5, 30).right(), 27);
}

// What a canvas shows after some values, painted only where it said that it changed.
template <class Gauge> void ExpectPartialPaintingEqualsWhole(const Gauge& pattern, const QSize& size, qreal scale)
{
    Canvas canvas;
    Widget& widget = canvas.AddArray("gauges", pattern.Clone()).Load(1);
    widget.Move(0, 0, static_cast<float>(size.width()) * 15, static_cast<float>(size.height()) * 15);
    widget.Set(&Widget::Visible, true);
    auto& gauge = static_cast<Gauge&>(widget);
    QImage image = Drawn(gauge, size, scale);
    image.setDevicePixelRatio(scale);
    std::vector<QRect> parts;
    const Subscription subscription = canvas.Changed.Subscribe(
        [&](const Area& area) { parts.push_back(PixelsOf(area).toAlignedRect().adjusted(-1, -1, 1, 1)); });
    for (const double value : {3.0, 50.0, 51.0, 400.0, -3.0, 77.7}) {
        parts.clear();
        gauge.Set(&ScaleGauge::Position, value);
        QPainter painter(&image);
        QRegion region;
        for (const QRect& part : parts) {
            region |= part;
        }
        painter.setClipRegion(region);
        painter.fillRect(QRect(QPoint(0, 0), size), QColor(ground));
        if constexpr (std::is_same_v<Gauge, AngularGauge>) {
            PaintAngularGauge(painter, gauge, QRectF(QPointF(0, 0), QSizeF(size)));
        } else {
            PaintLinearGauge(painter, gauge, QRectF(QPointF(0, 0), QSizeF(size)));
        }
        painter.end();
        QImage shown = image;
        shown.setDevicePixelRatio(1);
        ASSERT_EQ(shown, Drawn(gauge, size, scale)) << value << " at " << scale;
    }
}

TEST(AMeterPicture, IsTheSameWhetherAllIsPaintedOrWhatAValueChanged)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const std::int16_t size : std::array<std::int16_t, 2>{4, 12}) {
            AngularGauge dial = PlainDial();
            dial.Set(&ScaleGauge::PointerSize, size);
            dial.Set(&AngularGauge::ShowHub, size == 12);
            dial.Set(&AngularGauge::ArcRadius, static_cast<std::int16_t>(size == 12 ? 70 : 40));
            dial.Set(&ScaleGauge::Transparent, size == 12);
            ExpectPartialPaintingEqualsWhole(dial, {105, 105}, scale);
            for (const bool isVertical : {false, true}) {
                LinearGauge band = PlainBand(isVertical);
                band.Set(&ScaleGauge::PointerSize, size);
                band.Set(&ScaleGauge::BorderStyle, bevels::lowered);
                ExpectPartialPaintingEqualsWhole(band, isVertical ? QSize(41, 210) : QSize(210, 41), scale);
            }
        }
    }
}

TEST(AMeterPicture, IsTheSameWhetherItsFaceIsKeptOrNot)
{
    AngularGauge gauge = PlainDial();
    gauge.Set(&ScaleGauge::TickValuesVisible, true);
    gauge.Set(&ScaleGauge::BorderStyle, bevels::lowered);
    for (const qreal scale : {1.0, 1.5}) {
        const QImage first = Drawn(gauge, {105, 105}, scale);
        EXPECT_EQ(Drawn(gauge, {105, 105}, scale), first);
        AngularFaces().Clear();
        EXPECT_EQ(Drawn(gauge, {105, 105}, scale), first);
    }
    constexpr qsizetype fourFaces = 4 * 105 * 105 * 4;
    constexpr qsizetype usual = qsizetype{32} << 20;
    AngularFaces().SetMostBytes(fourFaces);
    for (int i = 0; i < 10; ++i) {
        gauge.Set(&ScaleGauge::SectionEnd1, i);
        Drawn(gauge);
        EXPECT_LE(AngularFaces().Bytes(), fourFaces);
    }
    AngularFaces().SetMostBytes(0);
    gauge.Set(&ScaleGauge::SectionEnd1, 20);
    const QImage afresh = Drawn(gauge);
    AngularFaces().SetMostBytes(usual);
    EXPECT_EQ(Drawn(gauge), afresh) << "drawn without a picture of the face";
    gauge.Set(&ScaleGauge::SectionEnd1, 30);
    EXPECT_EQ(Drawn(gauge).pixel(16, 42), AsSeen(sections[0])) << "a setting shows at once";
}

TEST(AMeterPicture, ComesAtOnceForAnySizesAndNumbers)
{
    QElapsedTimer time;
    time.start();
    constexpr std::array<std::int16_t, 7> sizes = {-32'768, -1, 0, 1, 40, 500, 32'767};
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const QSize& size : {QSize(1, 1), QSize(2, 30), QSize(10, 10), QSize(1'000, 1'000)}) {
        for (const std::int16_t each : sizes) {
            AngularGauge dial = PlainDial();
            LinearGauge band = PlainBand(size.width() < size.height());
            for (ScaleGauge* gauge : {static_cast<ScaleGauge*>(&dial), static_cast<ScaleGauge*>(&band)}) {
                gauge->Set(&ScaleGauge::TickValuesVisible, true);
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
            Drawn(dial, size);
            Drawn(band, size);
        }
    }
    EXPECT_LT(time.elapsed(), 10'000);
}

} // namespace
