#include "qt/painters/picture_drawing.h"

#include "platform/pictures.h"
#include "qt/drawing/device_space.h"
#include "qt/ports/qt_pictures.h"

#include <QBrush>
#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace quor {

QSizeF SizeInSpace(const DeviceSpace& space, const Picture& picture)
{
    const auto length = [&](int pixels) { return pixels <= 0 ? 0 : std::max<qreal>(1, space.Whole(pixels)); };
    return {length(picture.PixelWidth()), length(picture.PixelHeight())};
}

void DrawPicture(QPainter& painter, const Picture& picture, const QRectF& target, std::optional<Rgb> mask)
{
    if (target.isEmpty() || picture.PixelWidth() <= 0 || picture.PixelHeight() <= 0) {
        return;
    }
    const QImage image = ImageFor(picture, target.size().toSize(), mask);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, image.size() != target.size().toSize());
    painter.drawImage(target, image, QRectF(image.rect()));
}

void DrawTiles(QPainter& painter, const DeviceSpace& space, const Picture& picture, const QRectF& area,
               std::optional<Rgb> mask)
{
    const QSizeF size = SizeInSpace(space, picture);
    if (size.isEmpty()) {
        return;
    }
    const QImage tile = ImageFor(picture, size.toSize(), mask);
    QBrush brush(tile);
    brush.setTransform(QTransform::fromScale(size.width() / tile.width(), size.height() / tile.height()) *
                       QTransform::fromTranslate(area.left(), area.top()));
    painter.fillRect(area, brush);
}

} // namespace quor
