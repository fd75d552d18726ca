#pragma once
// Draws any widget.

#include <QRectF>

class QPainter;

namespace quor {

struct Area;
struct KeptPictures;
class Widget;

// In the area, which is in device-independent pixels. What is kept is of the widget's canvas alone.
void PaintWidget(QPainter& painter, const Widget& widget, const QRectF& area, KeptPictures& kept);

// True for a widget that would be invisible as it is, such as one without any extent.
bool PaintsNothing(const Widget& widget);

// Whether the place in pixels is one that can be drawn: not too far, not too large, and a number.
bool IsPaintable(const QRectF& area);

// Twips as device-independent pixels.
QRectF PixelsOf(const Area& twips);

} // namespace quor
