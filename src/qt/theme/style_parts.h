#pragma once
// The shapes that all controls are drawn from.

#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"

class QPainter;

namespace quor {

// Radii in device-independent pixels.
namespace radii {
inline constexpr qreal control = 3;
inline constexpr qreal button = 4; // also tabs and tool buttons
inline constexpr qreal menu = 6;
} // namespace radii

enum class Chevron { Down, Right };
void DrawChevron(QPainter& painter, const QPointF& middle, Chevron direction, const QColor& color);

} // namespace quor
