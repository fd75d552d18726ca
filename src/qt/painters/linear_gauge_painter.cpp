#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/bevel.h"
#include "qt/painters/gauge_painting.h"
#include "qt/painters/polygons.h"
#include "qt/ports/qt_text.h"
#include "widgets/gauge_scale.h"
#include "widgets/linear_gauge.h"
#include "widgets/linear_layout.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr qint64 mostPixels = qint64{1} << 20; // of a picture that is kept

// A gauge laid out in device pixels, with places along and across its scale turned into the picture's.
struct Scale {
    LinearLayout layout;
    QPointF origin;
    qreal line;
    qreal unit; // device pixels of one device-independent pixel

    QPointF At(qreal along, qreal across) const
    {
        return origin + (layout.isVertical ? QPointF(across, along) : QPointF(along, across));
    }
    QRectF Box(qreal alongLow, qreal alongHigh, qreal acrossLow, qreal acrossHigh) const
    {
        return {At(alongLow, acrossLow), At(alongHigh, acrossHigh)};
    }
};

// What the gauge is laid out in, at that size and scale.
LinearRoom RoomOf(const LinearGauge& gauge, const LaidNumbers& numbers, const QSizeF& size, qreal scale, qreal line)
{
    const bool isVertical = gauge.Orientation() == orientations::vertical;
    LinearRoom room{};
    room.along = isVertical ? size.height() : size.width();
    room.across = isVertical ? size.width() : size.height();
    room.scale = scale;
    room.edge = EdgeOf(gauge) == EdgeStyle::None ? 0 : 2 * line;
    const qreal digits = std::round(numbers.start.Height());
    room.startSize = isVertical ? digits : numbers.start.Width();
    room.endSize = isVertical ? digits : numbers.end.Width();
    room.numberSize = isVertical ? numbers.Widest() : digits;
    return room;
}

LinearLayout LayOut(const QPainter& painter, const DeviceSpace& space, const LinearGauge& gauge,
                    const LaidNumbers& numbers)
{
    const LinearRoom plain = RoomOf(gauge, LayNumbers(painter, gauge, 1), space.Size(), 1, 1);
    LinearRoom room = RoomOf(gauge, numbers, space.Area().size(), space.Scale(), space.Line(1));
    room.doNumbersFit = LayOut(gauge, plain).doNumbersFit;
    return LayOut(gauge, room);
}

// The seam is the last pixel before the boundary, and stays unpainted.
void PaintBand(QPainter& painter, const Scale& scale, const LinearGauge& gauge)
{
    const LinearLayout& layout = scale.layout;
    const qreal low = std::min(layout.start, layout.end);
    const qreal high = std::max(layout.start, layout.end);
    if (layout.bandLow >= layout.bandHigh) {
        const QColor color = WithAlpha(ToQt(Resolve(gauge.TickLabelColorValue())), 0.55);
        const qreal first = layout.areNumbersLow ? layout.scaleLine : layout.scaleLine - scale.line;
        painter.fillRect(scale.Box(low, high, first, first + scale.line), color);
        return;
    }
    for (const SectionRun& run : SectionRuns(gauge)) {
        const qreal from = std::min(layout.At(run.from), layout.At(run.to));
        const qreal to = std::max(layout.At(run.from), layout.At(run.to));
        const qreal shown = to < high ? to - scale.line : to;
        if (shown > from) {
            painter.fillRect(scale.Box(from, shown, layout.bandLow, layout.bandHigh), ToQt(Resolve(run.color)));
        }
    }
    FillRing(painter, scale.Box(low, high, layout.bandLow, layout.bandHigh), 0, scale.line, BlackAt(0.32));
}

void PaintNumbers(QPainter& painter, const Scale& scale, const LaidNumbers& numbers, const LinearGauge& gauge)
{
    const LinearLayout& layout = scale.layout;
    if (!layout.doNumbersFit) {
        return;
    }
    const QColor color = ToQt(Resolve(gauge.TickLabelColorValue()));
    const auto draw = [&](const TextBlock& text, qreal along) {
        const QPointF corner = scale.At(along, layout.numberLow);
        const qreal room = layout.isVertical ? numbers.Widest() : text.Width();
        const TextSide side = layout.areNumbersLow ? TextSide::Right : TextSide::Left;
        text.Draw(painter, corner.x(), corner.x() + room, corner.y() + std::round(text.Height()), side, color);
    };
    draw(numbers.start, layout.startLow);
    draw(numbers.end, layout.endLow);
}

// The line through the band that marks the value to the pixel, with the halo's light at its sides.
void PaintHairline(QPainter& painter, const Scale& scale, qreal first, const QColor& color, const QColor& halo)
{
    const LinearLayout& layout = scale.layout;
    if (layout.bandLow >= layout.bandHigh) {
        return;
    }
    const auto fill = [&](qreal low, qreal high, const QColor& with) {
        painter.fillRect(scale.Box(low, high, layout.bandLow, layout.bandHigh), with);
    };
    fill(first - scale.line, first, halo);
    fill(first, first + scale.line, color);
    fill(first + scale.line, first + 2 * scale.line, halo);
}

Outline Triangle(const Scale& scale, qreal middle, qreal lowFlank, qreal highFlank, const LinearGauge& gauge)
{
    const qreal tip = scale.layout.Across(std::round(gauge.PointerOffset() * scale.unit));
    const qreal base = scale.layout.Across(std::round(gauge.PointerOffset() * scale.unit) +
                                           std::round(gauge.PointerSize() * scale.unit));
    Outline outline;
    for (const QPointF& corner :
         {scale.At(middle, tip), scale.At(middle + highFlank, base), scale.At(middle - lowFlank, base)}) {
        outline.Add({corner.x(), corner.y()});
    }
    return outline;
}

// With the line's first pixel there along the scale.
void PaintPointer(QPainter& painter, const Scale& scale, qreal first, const LinearGauge& gauge)
{
    const QColor color = ToQt(Resolve(gauge.PointerColor()));
    const bool isLight = IsLight(color);
    const qreal middle = first + scale.line / 2;
    const qreal half = PointerBase(gauge, scale.unit) / 2;
    const QPointF nowhere(0, 0);
    const Outline body = Triangle(scale, middle, half, half, gauge);
    if (half > 0) {
        FillPolygon(painter, body.Grown(1.5 * scale.unit).Points(), nowhere, isLight ? BlackAt(0.8) : WhiteAt(0.8));
    }
    PaintHairline(painter, scale, first, color, isLight ? BlackAt(0.75) : WhiteAt(0.75));
    if (half > 0) {
        FillPolygon(painter, body.Points(), QPointF(scale.unit, scale.unit).toPoint(), BlackAt(0.22));
        FillPolygon(painter, body.Points(), nowhere, color);
        FillPolygon(painter, Triangle(scale, middle, half, 0, gauge).Points(), nowhere, WhiteAt(isLight ? 0.34 : 0.16));
    }
}

// A picture of the pointer, all across the inside of the gauge, unless it would be too large.
void KeepPointer(BandFace& face, const DeviceSpace& space, const LinearGauge& gauge)
{
    const QRectF inside = InsideEdge(space, EdgeOf(gauge)).translated(-space.Area().topLeft());
    const bool isVertical = face.layout.isVertical;
    const qreal along = isVertical ? inside.height() : inside.width();
    const qreal line = space.Line(1);
    const Stretch stretch = PointerStretch(gauge, along, space.Scale());
    face.pointerMargin = std::ceil(std::min((stretch.high - stretch.low) / 2, along));
    const qreal length = 2 * face.pointerMargin + line;
    const QRect box = (isVertical ? QRectF(inside.left(), 0, inside.width(), length)
                                  : QRectF(0, inside.top(), length, inside.height()))
                          .toRect();
    if (box.isEmpty() || qint64{box.width()} * box.height() > mostPixels) {
        return;
    }
    face.pointer = PictureOf(box, [&](QPainter& painter) {
        PaintPointer(painter, {face.layout, {}, line, space.Scale()}, face.pointerMargin, gauge);
    });
}

BandFace DrawBandFace(QPainter& painter, const LinearGauge& gauge, const WidgetSpace& space)
{
    PaintGround(painter, space, gauge);
    painter.setClipRect(InsideEdge(space, EdgeOf(gauge)), Qt::IntersectClip);
    const LaidNumbers numbers = LayNumbers(painter, gauge, space.Scale());
    const Scale scale{LayOut(painter, space, gauge, numbers), space.Area().topLeft(), space.Line(1), space.Scale()};
    PaintBand(painter, scale, gauge);
    PaintNumbers(painter, scale, numbers, gauge);
    BandFace face{{}, scale.layout, {}, 0};
    KeepPointer(face, space, gauge);
    return face;
}

} // namespace

void PaintLinearGauge(QPainter& painter, const LinearGauge& gauge, const WidgetSpace& space)
{
    const BandFace face = PaintFace(painter, gauge, space, space.Pictures().bands, DrawBandFace);
    const QRectF inside = InsideEdge(space, EdgeOf(gauge));
    const qreal low = face.layout.Marked(PointerPlace(gauge), space.Line(1), space.Scale()) - face.pointerMargin;
    if (face.pointer.isNull()) {
        painter.setClipRect(inside, Qt::IntersectClip);
        const Scale scale{face.layout, space.Area().topLeft(), space.Line(1), space.Scale()};
        PaintPointer(painter, scale, low + face.pointerMargin, gauge);
        return;
    }
    const QPointF place = face.layout.isVertical ? QPointF(inside.left(), space.Area().top() + low)
                                                 : QPointF(space.Area().left() + low, inside.top());
    if (!inside.contains(QRectF(place, face.pointer.size()))) {
        painter.setClipRect(inside, Qt::IntersectClip);
    }
    painter.drawImage(place, face.pointer);
}

} // namespace quor
