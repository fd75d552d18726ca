#pragma once
// Draws the push button with its caption and picture; flat and pale while it is locked.

class QPainter;
class QRectF;

namespace quor {

class PushButton;

void PaintPushButton(QPainter& painter, const PushButton& button, const QRectF& area);

} // namespace quor
