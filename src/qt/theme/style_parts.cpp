#include "qt/theme/style_parts.h"

#include "qt/theme/theme_colors.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quor {

qreal HairWidth(const QPainter& painter)
{
    const qreal scale = painter.device()->devicePixelRatioF();
    return std::max<qreal>(1, std::round(scale)) / scale;
}

QRectF Snapped(const QPainter& painter, const QRectF& area)
{
    const QTransform& transform = painter.deviceTransform();
    const QRectF device = transform.mapRect(area);
    const QPointF first(std::round(device.left()), std::round(device.top()));
    const QPointF last(std::round(device.right()), std::round(device.bottom()));
    return transform.inverted().mapRect(QRectF(first, last));
}

// Shapes are filled, never stroked: the corners of a stroke aren't sharp.
void DrawBox(QPainter& painter, const QRectF& area, qreal radius, QColor ground, QColor edge)
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
        shape.addRoundedRect(box.adjusted(width, width, -width, -width), inner, inner);
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

QColor WithAlpha(QColor color, qreal opacity)
{
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

} // namespace quor
