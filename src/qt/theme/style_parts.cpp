#include "qt/theme/style_parts.h"

#include "qt/theme/theme_colors.h"

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

void DrawTab(QPainter& painter, const QRect& area, const QString& caption, TabState state, const ThemeColors& colors)
{
    constexpr int padding = 8;
    const bool isInFront = state == TabState::InFront;
    if (isInFront) {
        const QRectF underline(area.left() + padding, area.bottom() - 3, area.width() - 2 * padding, 2);
        DrawBox(painter, area, radii::button, colors.selectedGround);
        DrawBox(painter, underline, 1, colors.accent);
    } else if (state != TabState::Behind) {
        DrawBox(painter, area, radii::button, state == TabState::Pressed ? colors.pressed : colors.hover);
    }
    painter.setPen(isInFront ? colors.selectedText : colors.labelText);
    painter.drawText(area.adjusted(0, 0, 0, -2), Qt::AlignCenter | Qt::TextSingleLine, caption);
}

} // namespace quor
