#pragma once
// Draws the number in a box.

class QPainter;
class QRectF;

namespace quor {

class AnalogDisplay;

void PaintAnalogDisplay(QPainter& painter, const AnalogDisplay& display, const QRectF& area);

} // namespace quor
