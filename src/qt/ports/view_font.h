#pragma once
// The fonts of a view: the faces that views name, as faces that are installed and have the same widths.

#include <QFont>
#include <QStringList>

class QPaintDevice;

namespace quor {

class Font;

// Device-independent pixels; a size that is none, or beyond all use, becomes the nearest that is.
qreal PixelSizeOf(const Font& font);

// The faces that a view can have here, sorted: those that are installed, and those that have a look-alike.
QStringList ViewFaces();

// To be drawn on the device, in device pixels: `scale` is how many of them a device-independent pixel has.
QFont ViewFont(const Font& font, qreal scale, const QPaintDevice& device);

} // namespace quor
