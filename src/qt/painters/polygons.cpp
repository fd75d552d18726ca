#include "qt/painters/polygons.h"

#include "qt/drawing/device_space.h"

#include <QPainter>

namespace quor {

QPolygonF ReachablePart(std::span<const Point> polygon, const QPointF& shift)
{
    const QRectF box = reachable.translated(-shift);
    QPolygonF part;
    for (const Point& point : Clipped(polygon, {box.left(), box.top(), box.right(), box.bottom()})) {
        part.append(shift + QPointF(point.x, point.y));
    }
    return part;
}

void FillPolygon(QPainter& painter, std::span<const Point> polygon, const QPointF& shift, const QColor& color)
{
    FillReachable(painter, ReachablePart(polygon, shift), color);
}

void FillReachable(QPainter& painter, const QPolygonF& polygon, const QColor& color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(polygon, Qt::WindingFill);
}

} // namespace quor
