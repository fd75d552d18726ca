#pragma once
// What the painters of gauges have in common: ground, edge, and the numbers at the ends of the scale.

#include "qt/painters/text_block.h"

#include <algorithm>
#include <cstdint>

class QColor;
class QPainter;

namespace quor {

class DeviceSpace;
class ScaleGauge;
enum class EdgeStyle;

EdgeStyle EdgeOf(std::int32_t bevel);
EdgeStyle EdgeOf(const ScaleGauge& gauge); // none for a transparent one

// Ground and edge; nothing for a transparent gauge.
void PaintGround(QPainter& painter, const DeviceSpace& space, const ScaleGauge& gauge);

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
