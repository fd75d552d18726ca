#pragma once
// Pictures on a widget: at their own size, stretched or tiled, with the pixels of one colour left out.

#include "base/values.h"

#include <QRectF>

#include <optional>

class QPainter;

namespace quor {

class DeviceSpace;
class Picture;

// The picture's own size in device pixels: a pixel of it is a device-independent pixel.
QSizeF SizeInSpace(const DeviceSpace& space, const Picture& picture);

// Fills the target, which is in device pixels.
void DrawPicture(QPainter& painter, const Picture& picture, const QRectF& target, std::optional<Rgb> mask);

// Again and again in its own size from the area's upper left corner.
void DrawTiles(QPainter& painter, const DeviceSpace& space, const Picture& picture, const QRectF& area,
               std::optional<Rgb> mask);

} // namespace quor
