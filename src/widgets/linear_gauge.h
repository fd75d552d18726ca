#pragma once
// A gauge on a straight line: a band of coloured sections with a triangle that points at the position.

#include "widgets/scale_gauge.h"

namespace quor {

namespace orientations {
inline constexpr std::int32_t vertical = 0;
inline constexpr std::int32_t horizontal = 1;
} // namespace orientations

// On which side of the band the numbers stand.
namespace tick_locations {
inline constexpr std::int32_t bottomRight = 0;
inline constexpr std::int32_t topLeft = 1;
} // namespace tick_locations

class LinearGauge final : public WidgetOf<LinearGauge, WidgetKind::LinearGauge, ScaleGauge> {
public:
    Property<"Orientation", std::int32_t> Orientation{orientations::vertical};
    Property<"TickLocation", std::int32_t> TickLocation{tick_locations::bottomRight};
    Property<"PointerOffset", std::int16_t> PointerOffset{2}; // from the scale line to the pointer's tip
    Property<"EndsMargin", std::int16_t> EndsMargin{15};      // from the widget's ends to those of the scale
    Property<"ShowTicksAxis", bool> ShowTicksAxis;

    void VisitProperties(PropertyVisitor& visitor) const override;

protected:
    // Turned, it swaps its width and height.
    void Stored(const void* property) override;
    Area PlacePointer() const override;
};

} // namespace quor
