#pragma once
// Polygons with smooth edges, in device pixels.

#include "widgets/outline.h"

#include <QPointF>
#include <QPolygonF>

#include <span>

class QColor;
class QPainter;

namespace quor {

// What the toolkit can fill of a polygon that is moved by so much.
QPolygonF ReachablePart(std::span<const Point> polygon, const QPointF& shift);

void FillPolygon(QPainter& painter, std::span<const Point> polygon, const QPointF& shift, const QColor& color);

// One within what the toolkit can reach.
void FillReachable(QPainter& painter, const QPolygonF& polygon, const QColor& color);

} // namespace quor
