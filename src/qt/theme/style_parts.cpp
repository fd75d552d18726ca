#include "qt/theme/style_parts.h"

#include <QPainter>

namespace quor {

void DrawChevron(QPainter& painter, const QPointF& middle, Chevron direction, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(middle);
    if (direction == Chevron::Right) {
        painter.rotate(-90);
    }
    painter.drawPolyline(QPolygonF({{-4, -2}, {0, 2}, {4, -2}}));
    painter.restore();
}

} // namespace quor
