#include "qt/drawing/mixing.h"
#include "qt/painters/bevel.h"
#include "qt/painters/gauge_painting.h"
#include "qt/painters/smooth_fills.h"
#include "qt/ports/qt_text.h"
#include "widgets/angular_gauge.h"
#include "widgets/arc_layout.h"
#include "widgets/gauge_scale.h"

#include <QLinearGradient>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace quor {

namespace {

// The arc in device pixels.
struct Dial {
    const ArcLayout& arc;
    QPointF origin; // of the gauge
    QRectF inside;  // its edge
    qreal line;

    QRectF Circle(qreal radius) const
    {
        const QPointF center = origin + QPointF(arc.center.x, arc.center.y);
        return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
    }
};

QRectF Box(const Extent& extent, const QPointF& origin)
{
    return {origin + QPointF(extent.left, extent.top), origin + QPointF(extent.right, extent.bottom)};
}

void FillRing(SmoothFills& fills, const Dial& dial, const RingPart& part, const QColor& color)
{
    const std::vector<Point> polygon = RingPolygon(dial.arc, part);
    if (!polygon.empty()) {
        fills.Trace(polygon, dial.origin);
        fills.Fill(color);
    }
}

void PaintSections(SmoothFills& fills, const Dial& dial, const AngularGauge& gauge)
{
    const ArcLayout& arc = dial.arc;
    const std::vector<SectionRun> runs = SectionRuns(gauge);
    const qreal half = dial.line / 2;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        RingPart part{runs[i].from, runs[i].to,        arc.inner,
                      arc.radius,   i == 0 ? 0 : half, i + 1 == runs.size() ? 0 : half};
        const QColor color = ToQt(Resolve(runs[i].color));
        const bool isMuted = runs[i].color == colors::buttonFace; // it has to show on its own grey
        FillRing(fills, dial, part, isMuted ? Darker(color, 0.38) : color);
        if (isMuted) {
            part = {part.from,
                    part.to,
                    part.inner + dial.line,
                    part.outer - dial.line,
                    part.offFrom + dial.line,
                    part.offTo + dial.line};
            FillRing(fills, dial, part, color);
        }
    }
}

void PaintArcs(SmoothFills& fills, const Dial& dial, const AngularGauge& gauge)
{
    const QColor color = WithAlpha(ToQt(Resolve(gauge.TickLabelColorValue())), 0.7);
    const ArcLayout& arc = dial.arc;
    if (gauge.ShowOuterArcRadius()) {
        FillRing(fills, dial, {0, 1, arc.radius, arc.radius + dial.line, 0, 0}, color);
    }
    if (gauge.ShowInnerArcRadius()) {
        FillRing(fills, dial, {0, 1, arc.inner - dial.line, arc.inner, 0, 0}, color);
    }
}

void PaintRings(const WidgetSpace& space, QPainter& painter, const Dial& dial, const AngularGauge& gauge)
{
    const std::vector<Point> all = RingPolygon(dial.arc, {0, 1, 0, dial.arc.radius + 2 * dial.line, 0, 0});
    if (all.empty()) {
        return;
    }
    SmoothFills fills(painter, space.Pictures().fillRows, Box(BoundsOf(all), dial.origin), dial.inside);
    PaintSections(fills, dial, gauge);
    PaintArcs(fills, dial, gauge);
    fills.Draw();
}

qreal DigitHeight(const LaidNumbers& numbers)
{
    return std::max<qreal>(1, std::round(numbers.start.Height()));
}

// Within so much of the gauge's edge.
HungNumbers Hung(const AngularGauge& gauge, const ArcLayout& arc, const LaidNumbers& numbers, const QSizeF& size,
                 qreal kept)
{
    return HangNumbers(arc, gauge.TickLabelMargin(), numbers.start.Width(), numbers.end.Width(), DigitHeight(numbers),
                       {kept, kept, size.width() - kept, size.height() - kept});
}

void PaintNumbers(QPainter& painter, const DeviceSpace& space, const ArcLayout& arc, const AngularGauge& gauge)
{
    const LaidNumbers numbers = LayNumbers(painter, gauge, space.Scale());
    if (numbers.start.IsEmpty()) {
        return;
    }
    const qreal kept = EdgeOf(gauge) == EdgeStyle::None ? 1 : 3;
    const QSizeF& size = space.Size();
    const ArcLayout plain = ArcOf(gauge, size.width(), size.height(), 1);
    if (!Hung(gauge, plain, LayNumbers(painter, gauge, 1), size, kept).doFit) {
        return;
    }
    const HungNumbers places = Hung(gauge, arc, numbers, space.Area().size(), space.Line(kept));
    const qreal digits = DigitHeight(numbers);
    const QColor color = ToQt(Resolve(gauge.TickLabelColorValue()));
    const auto draw = [&](const TextBlock& text, const HungNumber& place) {
        const qreal left = space.Area().left() + place.left;
        text.Draw(painter, left, left + text.Width(), space.Area().top() + place.top + digits, TextSide::Left, color);
    };
    draw(numbers.start, places.start);
    draw(numbers.end, places.end);
}

QPoint FallOf(const PointerRelief::Shadow& shadow)
{
    return QPointF(shadow.x, shadow.y).toPoint();
}

QPoint FarthestFall(const PointerRelief& relief)
{
    const QPoint first = FallOf(relief.shadows.front());
    const QPoint last = FallOf(relief.shadows.back());
    return {std::max(first.x(), last.x()), std::max(first.y(), last.y())};
}

void PaintPointer(const WidgetSpace& space, QPainter& painter, const Dial& dial, const AngularGauge& gauge,
                  bool isLight)
{
    constexpr std::int16_t shadedSize = 6; // from here it is seen as a body
    const QColor color = ToQt(Resolve(gauge.PointerColor()));
    const Outline outline = PointerOutline(gauge, dial.arc);
    const PointerRelief relief = ReliefOf(dial.arc);
    const QRectF box = Box(PointerBounds(gauge, dial.arc), dial.origin);
    painter.save(); // of a large one
    SmoothFills fills(painter, space.Pictures().fillRows, box, dial.inside, FarthestFall(relief));
    fills.Trace(outline.Grown(relief.halo).Points(), dial.origin);
    fills.Fill(isLight ? BlackAt(0.55) : WhiteAt(0.55));
    fills.Trace(outline.Points(), dial.origin);
    for (const auto& shadow : relief.shadows) {
        if (shadow.opacity > 0) {
            fills.Fill(BlackAt(shadow.opacity), FallOf(shadow));
        }
    }
    fills.Fill(color);
    if (gauge.PointerSize() >= shadedSize) {
        fills.Trace(LitHalf(gauge, dial.arc).Points(), dial.origin);
        fills.Fill(WhiteAt(isLight ? 0.34 : 0.18));
    }
    fills.Draw();
    painter.restore();
}

void PaintHub(QPainter& painter, const QRectF& disc, const ArcLayout& arc, qreal line, const QColor& color)
{
    constexpr qreal pinnedRadius = 5; // from here it has a pin in its middle
    const qreal radius = disc.width() / 2;
    const auto fill = [&](const QRectF& circle, const QBrush& brush) {
        painter.setBrush(brush);
        painter.drawEllipse(circle);
    };
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const auto& shadow : ReliefOf(arc).shadows) {
        if (shadow.opacity > 0) {
            fill(disc.translated(shadow.x, shadow.y), BlackAt(shadow.opacity));
        }
    }
    const QPointF reach = QPointF(radius, radius) / std::numbers::sqrt2;
    QLinearGradient body(disc.center() - reach, disc.center() + reach);
    body.setStops({{0, Lighter(color, 0.24)}, {0.5, color}, {1, Darker(color, 0.2)}});
    fill(disc, body);
    if (radius >= pinnedRadius * arc.scale) {
        const qreal around = 0.74 * radius;
        fill(disc.adjusted(around, around, -around, -around), Darker(color, 0.45));
    }
    if (radius > line) {
        painter.setPen(QPen(BlackAt(0.4), line));
        fill(disc.adjusted(line / 2, line / 2, -line / 2, -line / 2), Qt::NoBrush);
    }
}

// Where the hub lies; empty for none.
QRectF HubDisc(const Dial& dial, const AngularGauge& gauge)
{
    constexpr qreal mostRadius = 500;
    const qreal radius = std::min<qreal>(gauge.HubSize() / 2.0, mostRadius) * dial.arc.scale;
    return gauge.ShowHub() && radius > 0 ? dial.Circle(radius) : QRectF();
}

// A picture of the hub, and where it lies, unless it would be too large.
void KeepHub(DialFace& face, const AngularGauge& gauge, qreal line)
{
    constexpr qint64 mostPixels = qint64{1} << 20;
    const QRectF disc = HubDisc({face.arc, {}, {}, line}, gauge);
    const qreal reach = std::ceil(3 * face.arc.scale); // of the shadow
    const QRect box = disc.adjusted(-1, -1, reach, reach).toAlignedRect();
    if (disc.isEmpty() || qint64{box.width()} * box.height() > mostPixels) {
        return;
    }
    face.hub = PictureOf(
        box, [&](QPainter& painter) { PaintHub(painter, disc, face.arc, line, ToQt(Resolve(gauge.HubColor()))); });
    face.hubPlace = box.topLeft();
}

} // namespace

DialFace DrawDialFace(QPainter& painter, const AngularGauge& gauge, const WidgetSpace& space)
{
    PaintGround(painter, space, gauge);
    const QRectF inside = InsideEdge(space, EdgeOf(gauge));
    painter.setClipRect(inside, Qt::IntersectClip);
    DialFace face;
    face.arc = ArcOf(gauge, space.Area().width(), space.Area().height(), space.Scale());
    face.isPointerLight = IsLight(ToQt(Resolve(gauge.PointerColor())));
    const Dial dial{face.arc, space.Area().topLeft(), inside, space.Line(1)};
    PaintRings(space, painter, dial, gauge);
    PaintNumbers(painter, space, face.arc, gauge);
    KeepHub(face, gauge, space.Line(1));
    return face;
}

void PaintAngularGauge(QPainter& painter, const AngularGauge& gauge, const WidgetSpace& space)
{
    const DialFace face = PaintFace(painter, gauge, space, space.Pictures().dials, DrawDialFace);
    const Dial dial{face.arc, space.Area().topLeft(), InsideEdge(space, EdgeOf(gauge)), space.Line(1)};
    PaintPointer(space, painter, dial, gauge, face.isPointerLight);
    if (face.hub.isNull()) {
        if (const QRectF disc = HubDisc(dial, gauge); !disc.isEmpty()) {
            painter.setClipRect(dial.inside, Qt::IntersectClip);
            PaintHub(painter, disc, face.arc, dial.line, ToQt(Resolve(gauge.HubColor())));
        }
    } else {
        const QPointF place = dial.origin + face.hubPlace;
        if (!dial.inside.contains(QRectF(place, face.hub.size()))) {
            painter.setClipRect(dial.inside, Qt::IntersectClip);
        }
        painter.drawImage(place, face.hub);
    }
}

} // namespace quor
