#include "qt/drawing/mixing.h"
#include "qt/painters/polygons.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/round_led.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quor {

namespace {

// What is to be seen of a lamp: where its parts lie, in device pixels, and in which colour.
struct Lamp {
    QPointF center;
    qreal radius;
    qreal lens; // its radius
    qreal rim;  // the width of the line inside the lens's edge
    QColor color;
    std::int32_t bevel;
    bool isLit;
    bool isMuted;
    bool reflects;

    QRect Place() const
    {
        return QRectF(center.x() - radius, center.y() - radius, 2 * radius, 2 * radius).toAlignedRect();
    }

    // So large that at most a part of it shows, without rim and reflection.
    bool IsVast() const { return !reachable.contains(Place()); }

    auto Key() const { return KeyOf(Shape::Lamp, radius, lens, rim, color.rgba(), bevel, isLit, isMuted, reflects); }
};

// In device-independent pixels.
qreal BezelWidth(qreal diameter)
{
    return diameter < 14 ? 1 : diameter < 32 ? 2 : diameter < 56 ? 3 : 4;
}

Lamp LampOf(const RoundLed& led, const WidgetSpace& space)
{
    const QRectF& box = space.Area();
    const qreal diameter = std::min(box.width(), box.height());
    const QPointF corner(box.left() + std::floor((box.width() - diameter) / 2),
                         box.top() + std::floor((box.height() - diameter) / 2));
    Lamp lamp;
    lamp.radius = diameter / 2;
    lamp.center = corner + QPointF(lamp.radius, lamp.radius);
    lamp.bevel = led.BevelStyle();
    qreal bezel = 0;
    if (lamp.bevel != bevels::none) {
        bezel = std::min(space.Line(BezelWidth(std::min(space.Size().width(), space.Size().height()))),
                         std::floor((diameter - 1) / 2));
    }
    lamp.lens = lamp.radius - bezel;
    lamp.rim = lamp.lens < 2 || lamp.IsVast() ? 0 : space.Line(1);
    lamp.isLit = led.Active();
    lamp.reflects = led.ShowReflection();
    const LampColor shown = led.Shown();
    lamp.isMuted = shown.isMuted;
    lamp.color = ToQt(shown.color);
    return lamp;
}

void FillDisc(QPainter& painter, const Lamp& lamp, qreal radius, const QBrush& brush)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    if (!lamp.IsVast()) {
        painter.drawEllipse(lamp.center, radius, radius);
        return;
    }
    constexpr int corners = 8'192;
    std::vector<Point> disc;
    for (int corner = 0; corner < corners; ++corner) {
        const double angle = 2 * std::numbers::pi * corner / corners;
        disc.push_back({lamp.center.x() + radius * std::cos(angle), lamp.center.y() + radius * std::sin(angle)});
    }
    painter.drawPolygon(ReachablePart(disc, {}));
}

// From the light's side of a disc to the other.
QLinearGradient AlongLight(const Lamp& lamp, qreal radius)
{
    const qreal reach = radius * std::numbers::sqrt2 / 2;
    return {lamp.center - QPointF(reach, reach), lamp.center + QPointF(reach, reach)};
}

void PaintBezel(QPainter& painter, const Lamp& lamp)
{
    if (lamp.lens == lamp.radius) {
        return;
    }
    FillDisc(painter, lamp, lamp.radius, BlackAt(0.14));
    QGradientStops stops = {{0, WhiteAt(0.62)}, {0.4, WhiteAt(0.34)}, {0.6, BlackAt(0.2)}, {1, BlackAt(0.46)}};
    if (lamp.bevel == bevels::lowered) {
        for (QGradientStop& stop : stops) {
            stop.first = 1 - stop.first;
        }
        std::reverse(stops.begin(), stops.end());
    }
    QLinearGradient gradient = AlongLight(lamp, lamp.radius);
    gradient.setStops(stops);
    FillDisc(painter, lamp, lamp.radius, gradient);
    if (lamp.isLit && !lamp.isMuted) {
        FillDisc(painter, lamp, (lamp.lens + lamp.radius) / 2, WithAlpha(lamp.color, 0.62));
    }
}

QBrush LensBrush(const Lamp& lamp)
{
    const QColor& color = lamp.color;
    if (lamp.isMuted) {
        return color;
    }
    if (lamp.isLit) {
        QRadialGradient core(lamp.center, lamp.lens);
        core.setStops({{0, Lighter(color, 0.68)}, {0.34, Lighter(color, 0.42)}, {0.7, color}, {1, Darker(color, 0.1)}});
        return core;
    }
    QLinearGradient glass = AlongLight(lamp, lamp.lens);
    glass.setStops({{0, Darker(color, 0.38)}, {0.45, color}, {1, Lighter(color, 0.12)}});
    return glass;
}

void PaintLens(QPainter& painter, const Lamp& lamp)
{
    FillDisc(painter, lamp, lamp.lens, LensBrush(lamp));
    if (lamp.rim > 0) {
        const bool isBright = lamp.isLit && !lamp.isMuted;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Darker(lamp.color, isBright ? 0.34 : 0.45), lamp.rim));
        const qreal middle = lamp.lens - lamp.rim / 2;
        painter.drawEllipse(lamp.center, middle, middle);
    }
}

QRectF SquareAround(const QPointF& center, qreal radius)
{
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

// Where the light is mirrored: between an arc about the lamp's middle and a flatter one through the same ends.
QPainterPath Crescent(const Lamp& lamp)
{
    constexpr qreal first = 152; // degrees, clockwise from the right
    constexpr qreal last = 298;
    constexpr qreal half = (last - first) / 2;
    const qreal outer = 0.74 * lamp.lens;
    const qreal inner = 0.87 * lamp.lens;
    const qreal halfChord = outer * std::sin(qDegreesToRadians(half));
    const qreal innerHalf = qRadiansToDegrees(std::asin(halfChord / inner));
    const qreal shift = inner * std::cos(qDegreesToRadians(innerHalf)) - outer * std::cos(qDegreesToRadians(half));
    const qreal middle = qDegreesToRadians((first + last) / 2);
    const QPointF innerCenter = lamp.center - shift * QPointF(std::cos(middle), std::sin(middle));
    QPainterPath path;
    path.arcMoveTo(SquareAround(lamp.center, outer), -first);
    path.arcTo(SquareAround(lamp.center, outer), -first, -2 * half);
    path.arcTo(SquareAround(innerCenter, inner), -(first + last) / 2 - innerHalf, 2 * innerHalf);
    path.closeSubpath();
    return path;
}

void PaintReflection(QPainter& painter, const Lamp& lamp)
{
    if (!lamp.reflects || lamp.isMuted || lamp.rim == 0) {
        return;
    }
    const qreal opacity = lamp.isLit ? 0.8 : 0.36;
    QLinearGradient fade = AlongLight(lamp, 0.87 * lamp.lens);
    fade.setFinalStop(lamp.center);
    fade.setStops({{0, WhiteAt(opacity)}, {1, WhiteAt(0)}});
    painter.setPen(Qt::NoPen);
    painter.setBrush(fade);
    painter.drawPath(Crescent(lamp));
}

} // namespace

void PaintRoundLed(QPainter& painter, const RoundLed& led, const WidgetSpace& space)
{
    if (!led.Transparent()) {
        painter.fillRect(space.Area(), ToQt(Resolve(colors::buttonFace)));
    }
    const Lamp lamp = LampOf(led, space);
    DrawKept(painter, space.Pictures().shapes, lamp.Place(), lamp.Key(), [&](QPainter& onPicture) {
        onPicture.setRenderHint(QPainter::Antialiasing);
        PaintBezel(onPicture, lamp);
        PaintLens(onPicture, lamp);
        PaintReflection(onPicture, lamp);
    });
}

} // namespace quor
