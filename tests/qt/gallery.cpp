// Draws every instrument in its variants into a picture, to be looked at.

#include "qt/painters/round_led_painter.h"
#include "widgets/round_led.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace quor;

void Row(QPainter& painter, qreal top, qreal size, const QColor& ground)
{
    painter.fillRect(QRectF(0, top, 900, size + 16), ground);
    qreal left = 8;
    for (const auto bevel : {bevels::none, bevels::raised, bevels::lowered}) {
        for (const int color : {0x00FF00, 0x509E2E, 0x00A8F2, 0x2F2FD6, 0xD0631F, static_cast<int>(0x8000000F)}) {
            for (const bool isActive : {true, false}) {
                RoundLed led;
                led.Set(&RoundLed::ActiveColor, Color{color});
                led.Set(&RoundLed::InactiveColor, Color{color});
                led.Set(&RoundLed::AutoInactiveColor, Color{color} != colors::buttonFace);
                led.Set(&RoundLed::BevelStyle, bevel);
                led.Set(&RoundLed::Active, isActive);
                PaintRoundLed(painter, led, QRectF(left, top + 8, size, size));
                left += size + 4;
            }
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const qreal scale = argc > 2 ? std::atof(argv[2]) : 1;
    QImage image(QSize(900, 400) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    Row(painter, 0, 17, Qt::white);
    Row(painter, 34, 17, QColor(0xD5D9DE));
    Row(painter, 68, 17, QColor(0x1F3349));
    Row(painter, 104, 10, Qt::white);
    Row(painter, 132, 51, Qt::white);
    painter.end();
    if (argc < 2 || !image.save(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: gallery FILE.png [SCALE]\n", stderr);
        return 2;
    }
    return 0;
}
