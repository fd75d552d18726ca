#pragma once
// What the painters of gauges have in common: ground and edge.

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

// A colour that needs darkness around it to stand out, instead of light.
bool IsLight(const QColor& color);

} // namespace quor
