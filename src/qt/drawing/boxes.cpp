#include "qt/drawing/boxes.h"

#include "qt/drawing/device_space.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quor {

void FillRounded(QPainter& painter, const QRectF& box, qreal radius, const QBrush& brush)
{
    if (radius <= 0) {
        painter.fillRect(box, brush);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(box & reachable, radius, radius);
}

void FillRing(QPainter& painter, const QRectF& box, qreal radius, qreal width, const QBrush& brush)
{
    const QRectF inner = Shrunk(box, width);
    if (inner.width() <= 0 || inner.height() <= 0) {
        FillRounded(painter, box, radius, brush);
        return;
    }
    QPainterPath ring;
    ring.addRoundedRect(box & reachable, radius, radius);
    const qreal innerRadius = std::max<qreal>(0, radius - width);
    ring.addRoundedRect(inner & reachable.adjusted(width, width, -width, -width), innerRadius, innerRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(ring, brush);
}

qreal HairWidth(const QPainter& painter)
{
    const qreal scale = painter.deviceTransform().m11();
    return std::max<qreal>(1, std::round(scale)) / scale;
}

QRectF Snapped(const QPainter& painter, const QRectF& area)
{
    const QTransform& transform = painter.deviceTransform();
    return transform.inverted().mapRect(OnWholePixels(transform.mapRect(area)));
}

void DrawBox(QPainter& painter, const QRectF& area, qreal radius, const QColor& ground, const QColor& edge)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = Snapped(painter, area);
    QPainterPath shape;
    shape.addRoundedRect(box, radius, radius);
    if (ground.isValid()) {
        painter.fillPath(shape, ground);
    }
    if (edge.isValid()) {
        const qreal width = HairWidth(painter);
        const qreal inner = std::max<qreal>(0, radius - width);
        shape.addRoundedRect(Shrunk(box, width), inner, inner);
        painter.fillPath(shape, edge);
    }
    painter.restore();
}

void DrawRule(QPainter& painter, const QRectF& area, Qt::Orientation orientation, const QColor& color)
{
    QRectF rule = Snapped(painter, area);
    const qreal width = HairWidth(painter);
    if (orientation == Qt::Horizontal) {
        rule.setHeight(width);
    } else {
        rule.setWidth(width);
    }
    painter.fillRect(rule, color);
}

} // namespace quor
