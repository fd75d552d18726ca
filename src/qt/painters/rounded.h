#pragma once
// Rounded boxes and the rings inside their edges, filled, never stroked, so that their sides lie on whole pixels.

#include <QBrush>
#include <QRectF>

class QPainter;

namespace quor {

inline QRectF Shrunk(const QRectF& box, qreal by)
{
    return box.adjusted(by, by, -by, -by);
}

void FillRounded(QPainter& painter, const QRectF& box, qreal radius, const QBrush& brush);

// `width` wide, inside the box's edge. A box without room for a ring is filled.
void FillRing(QPainter& painter, const QRectF& box, qreal radius, qreal width, const QBrush& brush);

} // namespace quor
