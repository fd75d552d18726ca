#pragma once
// The edges of what lies on a view: two pixels that catch the light or lie in the shade, or one flat line.

#include <QColor>
#include <QRectF>

class QPainter;

namespace quor {

class DeviceSpace;

enum class EdgeStyle { None, Flat, Lowered, Raised };

// Over the element's ground, at the inner side of the space's area. If the ground is of one colour, which is painted
// already, to know it makes it faster.
void PaintEdge(QPainter& painter, const DeviceSpace& space, EdgeStyle style, const QColor& ground = QColor());

// What an edge leaves of the area; null where it leaves nothing.
QRectF InsideEdge(const DeviceSpace& space, EdgeStyle style);

} // namespace quor
