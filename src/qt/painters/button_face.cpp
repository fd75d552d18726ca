#include "qt/painters/button_face.h"

#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"

#include "qt/painters/widget_painters.h"

#include <QLinearGradient>

namespace quor {

namespace {

constexpr qreal cornerRadius = 3;

void PaintBody(QPainter& painter, const QRectF& box, qreal radius, qreal line, const QColor& color)
{
    QLinearGradient light(box.topLeft(), box.bottomLeft());
    light.setStops({{0, Lighter(color, 0.42)}, {1, Lighter(color, 0.12)}});
    FillRounded(painter, box, radius, light);
    const QRectF inner = Shrunk(box, line);
    painter.fillRect(QRectF(inner.left() + line, inner.top(), inner.width() - 2 * line, line), WhiteAt(0.8));
    painter.fillRect(QRectF(inner.left() + line, inner.bottom() - line, inner.width() - 2 * line, line), BlackAt(0.1));
}

void PaintAfresh(QPainter& painter, const DeviceSpace& space, const QColor& color, bool isEnabled)
{
    const QRectF& box = space.Area();
    const qreal radius = cornerRadius * space.Scale();
    const qreal line = space.Line(1);
    if (isEnabled && box.width() > 4 * line && box.height() > 4 * line) {
        PaintBody(painter, box, radius, line, color);
    } else {
        FillRounded(painter, box, radius, Lighter(color, 0.22));
    }
    FillRing(painter, box, radius, line, BlackAt(isEnabled ? 0.42 : 0.18));
}

} // namespace

void PaintButtonFace(QPainter& painter, const WidgetSpace& space, const QColor& color, bool isEnabled)
{
    const QRectF& box = space.Area();
    const auto key = KeyOf(Shape::ButtonFace, box.width(), box.height(), space.Scale(), color.rgba(), isEnabled);
    DrawKept(painter, space.Pictures().shapes, box.toRect(), key,
             [&](QPainter& onPicture) { PaintAfresh(onPicture, space, color, isEnabled); });
}

QColor CaptionColorOn(const QColor& color, bool isEnabled)
{
    return WithAlpha(color, isEnabled ? 1 : disabledOpacity);
}

} // namespace quor
