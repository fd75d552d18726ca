#pragma once
// Draws the panel: its ground, the picture that fills it, a picture and a caption, and its bevel.

class QPainter;
class QRectF;

namespace quor {

class Panel;

void PaintPanel(QPainter& painter, const Panel& panel, const QRectF& area);

} // namespace quor
