// The round lamp is measured in pictures of it.

#include "qt/painters/round_led_painter.h"
#include "tests/qt/test.h"
#include "widgets/round_led.h"

#include <QElapsedTimer>
#include <QImage>

namespace {

constexpr QRgb ground = 0xFFFFFFFF;
constexpr int plainGreen = 0x0000C800;

// A lamp without reflection, so that its parts can be measured; lit in a colour that no part of the bezel has.
RoundLed MakeLamp(bool isActive, std::int32_t bevel, bool reflects = false)
{
    RoundLed led;
    led.Set(&RoundLed::ActiveColor, Color{plainGreen});
    led.Set(&RoundLed::Active, isActive);
    led.Set(&RoundLed::BevelStyle, bevel);
    led.Set(&RoundLed::ShowReflection, reflects);
    return led;
}

QImage Drawn(const RoundLed& led, const QSize& size, qreal scale = 1, qreal margin = 0)
{
    QImage image((QSizeF(size) * scale + 2 * QSizeF(margin, margin) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    QPainter painter(&image);
    PaintRoundLed(painter, led, QRectF(QPointF(margin, margin), QSizeF(size)));
    return image;
}

QRgb Middle(const QImage& image)
{
    return image.pixel(image.width() / 2, image.height() / 2);
}

bool IsGreenish(QRgb pixel)
{
    return qGreen(pixel) > qRed(pixel) + 20;
}

// Pixels from the left edge in the middle row to the first that belongs to the lens.
int LeftBezel(const QImage& image)
{
    int x = 0;
    while (x < image.width() / 2 && !IsGreenish(image.pixel(x, image.height() / 2))) {
        ++x;
    }
    return x;
}

TEST(RoundLedPicture, ALitCoreIsPalerThanItsColorAndTheColorStandsAroundIt)
{
    const QImage image = Drawn(MakeLamp(true, bevels::none), {101, 101});
    EXPECT_NEAR(qRed(Middle(image)), 0.68 * 255, 3);
    const QRgb body = image.pixel(50 + static_cast<int>(std::lround(0.7 * 50.5)), 50);
    EXPECT_NEAR(qRed(body), 0, 6);
    EXPECT_NEAR(qGreen(body), 200, 4);
}

TEST(RoundLedPicture, TheBezelGrowsWithTheDiameter)
{
    const struct {
        int diameter;
        int bezel;
    } cases[] = {{13, 1}, {14, 2}, {31, 2}, {32, 3}, {55, 3}, {56, 4}, {200, 4}};
    for (const auto& each : cases) {
        const QSize size(each.diameter, each.diameter);
        EXPECT_EQ(LeftBezel(Drawn(MakeLamp(false, bevels::lowered), size)), each.bezel) << each.diameter;
        EXPECT_EQ(LeftBezel(Drawn(MakeLamp(false, bevels::none), size)), 0) << each.diameter;
    }
}

TEST(RoundLedPicture, OnlyALitLampSpillsOntoTheInnerHalfOfItsBezel)
{
    const QImage lit = Drawn(MakeLamp(true, bevels::lowered), {60, 60});
    EXPECT_TRUE(IsGreenish(lit.pixel(3, 30)));
    EXPECT_FALSE(IsGreenish(lit.pixel(1, 30)));
    EXPECT_FALSE(IsGreenish(Drawn(MakeLamp(false, bevels::lowered), {60, 60}).pixel(3, 30)));
}

TEST(RoundLedPicture, MutedItIsFlatLitOrNot)
{
    RoundLed led = MakeLamp(true, bevels::lowered, true);
    led.Set(&RoundLed::ActiveColor, colors::buttonFace);
    led.Set(&RoundLed::InactiveColor, colors::buttonFace);
    led.Set(&RoundLed::AutoInactiveColor, false);
    const QImage lit = Drawn(led, {60, 60});
    for (int y = 18; y <= 42; ++y) {
        for (int x = 18; x <= 42; ++x) {
            ASSERT_EQ(lit.pixel(x, y), 0xFFD5D9DE) << x << ", " << y;
        }
    }
    led.Set(&RoundLed::Active, false);
    EXPECT_EQ(Drawn(led, {60, 60}), lit);
}

TEST(RoundLedPicture, TheReflectionIsACrescentAtTheUpperLeft)
{
    for (const bool isActive : {true, false}) {
        const QImage plain = Drawn(MakeLamp(isActive, bevels::none), {100, 100});
        const QImage mirrored = Drawn(MakeLamp(isActive, bevels::none, true), {100, 100});
        int changed = 0;
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                const bool differs = plain.pixel(x, y) != mirrored.pixel(x, y);
                changed += differs ? 1 : 0;
                ASSERT_FALSE(differs && x + y > 100) << x << ", " << y;
                ASSERT_FALSE(differs && std::hypot(x - 49.5, y - 49.5) > 0.75 * 50 + 1) << x << ", " << y;
            }
        }
        EXPECT_GT(changed, 300);
    }
}

// At 1.5 the edges of a lamp at a whole place lie on device pixels: its first column is as strong as it can be.
TEST(RoundLedPicture, EdgesLieOnDevicePixelsAtOneAndAHalf)
{
    const QImage image = Drawn(MakeLamp(false, bevels::none), {20, 20}, 1.5);
    ASSERT_EQ(image.width(), 30);
    for (const int end : {0, 29}) {
        EXPECT_LT(qGray(image.pixel(end, 15)), 70);
        EXPECT_LT(qGray(image.pixel(15, end)), 70);
    }
}

} // namespace
