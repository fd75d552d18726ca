#pragma once
// Boxes, rings inside their edges and lines: filled, never stroked, so that their sides lie on whole device pixels at
// any scale factor.

#include <QBrush>
#include <QColor>
#include <QRectF>

class QPainter;

namespace quor {

inline QRectF Shrunk(const QRectF& box, qreal by)
{
    return box.adjusted(by, by, -by, -by);
}

// These two take device pixels (see DeviceSpace).
void FillRounded(QPainter& painter, const QRectF& box, qreal radius, const QBrush& brush);

// `width` wide, inside the box's edge. A box without room for a ring is filled.
void FillRing(QPainter& painter, const QRectF& box, qreal radius, qreal width, const QBrush& brush);

// What follows takes the painter's coordinates.

// The width of a hairline: max(1, round(scale)) device pixels.
qreal HairWidth(const QPainter& painter);

// The area with its edges moved to whole device pixels.
QRectF Snapped(const QPainter& painter, const QRectF& area);

// A rounded box with a ground and a hairline at its inner edge; an invalid colour leaves its part out.
void DrawBox(QPainter& painter, const QRectF& area, qreal radius, const QColor& ground, const QColor& edge = QColor());

// A horizontal or vertical hairline: the box's upper or left edge.
void DrawRule(QPainter& painter, const QRectF& area, Qt::Orientation orientation, const QColor& color);

} // namespace quor
