#pragma once
// Draws the round lamp.

class QPainter;
class QRectF;

namespace quor {

class RoundLed;

void PaintRoundLed(QPainter& painter, const RoundLed& led, const QRectF& area);

} // namespace quor
