#pragma once
// The painters of all kinds of widget, found by the name of their array.

#include <QRectF>

#include <string_view>

class QPainter;

namespace quor {

struct Area;
class Widget;

// Draws a widget in the area, which is in device-independent pixels.
using WidgetPainter = void (*)(QPainter& painter, const Widget& widget, const QRectF& area);

// Null for a kind that isn't drawn.
WidgetPainter PainterFor(std::string_view arrayName);

// True for a widget that would be invisible as it is, such as one without any extent.
bool PaintsNothing(const Widget& widget);

// Whether the place in pixels is one that can be drawn: not too far, not too large, and a number.
bool IsPaintable(const QRectF& area);

// Twips as device-independent pixels.
QRectF PixelsOf(const Area& twips);

} // namespace quor
