#pragma once
// Draws the button with a lamp on it. While it is locked its lamp stays as it is.

class QPainter;
class QRectF;

namespace quor {

class SwitchLed;

void PaintSwitchLed(QPainter& painter, const SwitchLed& button, const QRectF& area);

} // namespace quor
