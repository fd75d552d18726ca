#pragma once
// Draws the rectangular lamp with its legend.

class QPainter;
class QRectF;

namespace quor {

class RectLed;

void PaintRectLed(QPainter& painter, const RectLed& led, const QRectF& area);

} // namespace quor
