#pragma once
// What the painters of gauges have in common: ground, edge, and the numbers at the ends of the scale.

#include "qt/painters/text_block.h"
#include "qt/painters/widget_painters.h"

#include <algorithm>
#include <cstdint>

namespace quor {

class ScaleGauge;
enum class EdgeStyle;

EdgeStyle EdgeOf(std::int32_t bevel);
EdgeStyle EdgeOf(const ScaleGauge& gauge); // none for a transparent one

// Ground and edge; nothing for a transparent gauge.
void PaintGround(QPainter& painter, const DeviceSpace& space, const ScaleGauge& gauge);

// Draws the part of a gauge that stands still, with all that is kept of it: from its picture, unless it is too large or
// on no canvas.
template <class Face, class Gauge>
Face PaintFace(QPainter& painter, const Gauge& gauge, const WidgetSpace& space, Kept<Face>& kept,
               Face (*draw)(QPainter&, const Gauge&, const WidgetSpace&))
{
    constexpr qint64 mostPixels = qint64{2} << 20;
    const QRect place = space.Area().toRect();
    if (gauge.Look() == 0 || qint64{place.width()} * place.height() > mostPixels) {
        painter.save();
        Face face = draw(painter, gauge, space);
        painter.restore();
        return face;
    }
    const Face face = kept.Of(space.Key(Shape::Widget, gauge), [&] {
        Face made;
        made.picture = PictureOf(place, [&](QPainter& onPicture) { made = draw(onPicture, gauge, space); });
        if (!gauge.Transparent()) {
            made.picture.convertTo(QImage::Format_RGB32);
        }
        return made;
    });
    painter.drawImage(place.topLeft(), face.picture);
    return face;
}

// The texts of the numbers, both empty where none are shown.
struct LaidNumbers {
    TextBlock start;
    TextBlock end;
    qreal Widest() const { return std::max(start.Width(), end.Width()); }
};
LaidNumbers LayNumbers(const QPainter& painter, const ScaleGauge& gauge, qreal scale);

// A colour that needs darkness around it to stand out, instead of light.
bool IsLight(const QColor& color);

} // namespace quor
