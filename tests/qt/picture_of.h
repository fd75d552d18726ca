#pragma once
// Pictures of instruments, for tests that measure them.

#include "qt/painters/painters.h"
#include "widgets/widget.h"

#include <QImage>
#include <QPainter>

namespace quor {

// On a ground of that colour, by a painter that is scaled: the toolkit ignores a device pixel ratio below 1.
inline QImage PictureOf(const Widget& widget, const QRectF& area, const QSize& size, qreal scale = 1,
                        QRgb ground = 0xFFFFFFFF)
{
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.scale(scale, scale);
    PainterFor(widget.Name())(painter, widget, area);
    return image;
}

} // namespace quor
