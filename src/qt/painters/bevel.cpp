#include "qt/painters/bevel.h"

#include "qt/drawing/boxes.h"
#include "qt/drawing/device_space.h"
#include "qt/drawing/mixing.h"

namespace quor {

namespace {

// A frame of one line's width; the corners at the lower left and the upper right belong to the light's side.
void PaintFrame(QPainter& painter, const QRectF& box, qreal line, const QColor& lightSide, const QColor& otherSide)
{
    if (box.width() < 2 * line || box.height() < 2 * line) {
        return;
    }
    painter.fillRect(QRectF(box.left(), box.top(), line, box.height()), lightSide);
    painter.fillRect(QRectF(box.left() + line, box.top(), box.width() - line, line), lightSide);
    painter.fillRect(QRectF(box.right() - line, box.top() + line, line, box.height() - line), otherSide);
    painter.fillRect(QRectF(box.left() + line, box.bottom() - line, box.width() - 2 * line, line), otherSide);
}

} // namespace

void PaintEdge(QPainter& painter, const DeviceSpace& space, EdgeStyle style, const QColor& ground)
{
    const auto seen = [&](const QColor& color) { return ground.isValid() ? Over(ground, color) : color; };
    const qreal line = space.Line(1);
    const QRectF& outer = space.Area();
    const QRectF inner = Shrunk(outer, line);
    switch (style) {
    case EdgeStyle::None:
        break;
    case EdgeStyle::Flat:
        PaintFrame(painter, outer, line, seen(BlackAt(0.3)), seen(BlackAt(0.3)));
        break;
    case EdgeStyle::Lowered:
        PaintFrame(painter, outer, line, seen(BlackAt(0.42)), seen(BlackAt(0.16)));
        PaintFrame(painter, inner, line, seen(BlackAt(0.12)), seen(WhiteAt(0.55)));
        break;
    case EdgeStyle::Raised:
        PaintFrame(painter, outer, line, seen(BlackAt(0.16)), seen(BlackAt(0.42)));
        PaintFrame(painter, inner, line, seen(WhiteAt(0.85)), seen(BlackAt(0.12)));
        break;
    }
}

QRectF InsideEdge(const DeviceSpace& space, EdgeStyle style)
{
    const qreal lines = style == EdgeStyle::None ? 0 : style == EdgeStyle::Flat ? 1 : 2;
    const QRectF inside = Shrunk(space.Area(), lines * space.Line(1));
    return inside.isEmpty() ? QRectF() : inside;
}

} // namespace quor
