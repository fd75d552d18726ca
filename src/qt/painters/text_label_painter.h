#pragma once
// Draws the text label: its text, pale while it is disabled, with its ground and border.

class QPainter;
class QRectF;

namespace quor {

class TextLabel;

void PaintTextLabel(QPainter& painter, const TextLabel& label, const QRectF& area);

// Whether it has neither a text nor a ground nor a border.
bool IsBlank(const TextLabel& label);

} // namespace quor
