#include "qt/painters/rounded.h"

#include "qt/painters/device_space.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

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

} // namespace quor
