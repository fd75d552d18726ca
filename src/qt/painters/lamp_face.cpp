#include "qt/painters/lamp_face.h"

#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/kept_pictures.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace quor {

namespace {

QLinearGradient Downwards(const QRectF& box, const QGradientStops& stops)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setStops(stops);
    return gradient;
}

// The two rings of a lowered lamp: the shade in which it lies, and the wall of its socket.
void PaintSocket(QPainter& painter, const QRectF& box, const LampFace& lamp)
{
    FillRing(painter, box, lamp.radius, lamp.line, Downwards(box, {{0, BlackAt(0.5)}, {1, BlackAt(0.12)}}));
    const QRectF wall = Shrunk(box, lamp.line);
    const qreal radius = lamp.radius - lamp.line;
    FillRing(painter, wall, radius, lamp.line, Darker(lamp.color, lamp.isMuted ? 0.45 : 0.3));
    if (lamp.isLit && !lamp.isMuted) {
        FillRing(painter, wall, radius, lamp.line, WithAlpha(Lighter(lamp.color, 0.1), 0.7));
    }
}

void PaintRim(QPainter& painter, const QRectF& box, const LampFace& lamp)
{
    FillRing(painter, box, lamp.radius, lamp.line, Darker(lamp.color, lamp.isMuted ? 0.45 : 0.4));
    if (lamp.bevel == bevels::raised && !lamp.isMuted) {
        const QRectF flank = Shrunk(box, lamp.line);
        const QColor top = Lighter(lamp.color, lamp.isLit ? 0.6 : 0.3);
        FillRing(painter, flank, lamp.radius - lamp.line, lamp.line,
                 Downwards(flank, {{0, top}, {1, Darker(lamp.color, 0.26)}}));
    }
}

void PaintLitLens(QPainter& painter, const QRectF& lens, qreal radius, const LampFace& lamp)
{
    const qreal fade = std::min(0.35 * lens.width(), 0.9 * lens.height()) / lens.width();
    QLinearGradient sides(lens.topLeft(), lens.topRight());
    sides.setStops({{0, BlackAt(0.1)}, {fade, BlackAt(0)}, {1 - fade, BlackAt(0)}, {1, BlackAt(0.1)}});
    FillRounded(painter, lens, radius, sides);
    FillRounded(painter, lens, radius,
                Downwards(lens, {{0, BlackAt(0.06)}, {0.3, BlackAt(0)}, {0.6, BlackAt(0)}, {1, BlackAt(0.12)}}));
    FillRing(painter, lens, radius, lamp.line, WhiteAt(0.34));
}

void PaintUnlitLens(QPainter& painter, const QRectF& lens, qreal radius, const LampFace& lamp)
{
    if (lamp.bevel == bevels::lowered) {
        FillRounded(painter, lens, radius, Downwards(lens, {{0, BlackAt(0.26)}, {0.6, BlackAt(0)}}));
    } else if (lamp.bevel == bevels::raised) {
        FillRounded(painter, lens, radius,
                    Downwards(lens, {{0, WhiteAt(0.09)}, {0.4, WhiteAt(0)}, {0.6, BlackAt(0)}, {1, BlackAt(0.12)}}));
    }
}

void PaintReflection(QPainter& painter, const QRectF& lens, qreal radius, const LampFace& lamp)
{
    QRectF upper = lens;
    upper.setHeight(lens.height() / 3);
    FillRounded(painter, upper, std::min(radius, upper.height() / 2),
                Downwards(upper, {{0, WhiteAt(lamp.isLit ? 0.26 : 0.13)}, {1, WhiteAt(0)}}));
}

void PaintAfresh(QPainter& painter, const QRectF& box, const LampFace& lamp)
{
    const bool isLowered = lamp.bevel == bevels::lowered;
    const qreal depth = (isLowered || lamp.bevel == bevels::raised ? 2 : 1) * lamp.line;
    const QRectF lens = Shrunk(box, depth);
    if (lens.width() < 1 || lens.height() < 1) {
        FillRounded(painter, box, 0, lamp.color);
        return;
    }
    const QRectF body = isLowered ? Shrunk(box, lamp.line) : box;
    FillRounded(painter, body, lamp.radius - (isLowered ? lamp.line : 0), lamp.color);
    if (isLowered) {
        PaintSocket(painter, box, lamp);
    } else {
        PaintRim(painter, box, lamp);
    }
    if (lamp.isMuted) {
        return;
    }
    const qreal radius = std::max<qreal>(0, lamp.radius - depth);
    if (lamp.isLit) {
        PaintLitLens(painter, lens, radius, lamp);
    } else {
        PaintUnlitLens(painter, lens, radius, lamp);
    }
    if (lamp.reflects) {
        PaintReflection(painter, lens, radius, lamp);
    }
}

} // namespace

void PaintLampFace(QPainter& painter, KeptPictures& kept, const QRectF& box, const LampFace& lamp)
{
    if (box.isEmpty()) {
        return;
    }
    const auto key = KeyOf(Shape::LampFace, box.width(), box.height(), lamp.color.rgba(), lamp.bevel, lamp.isLit,
                           lamp.isMuted, lamp.reflects, lamp.radius, lamp.line);
    DrawKept(painter, kept.shapes, box.toRect(), key, [&](QPainter& onPicture) { PaintAfresh(onPicture, box, lamp); });
}

} // namespace quor
