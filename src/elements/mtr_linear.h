#pragma once
// The linear meter: one value as a pointer along a band.

#include "elements/scale_meter.h"
#include "widgets/linear_gauge.h"

#include <memory>

namespace quor {

class clsMtrLinear final : public ElementOn<LinearGauge, ScaleMeter> {
public:
    static constexpr std::uint8_t type = 2;

    Setting<"MeterOrientation", std::int32_t, &LinearGauge::Orientation> MeterOrientation;
    Setting<"PointerOffset", std::int16_t, &LinearGauge::PointerOffset> PointerOffset;
    Setting<"TickLabelMargin", std::int16_t, &LinearGauge::TickLabelMargin> TickLabelMargin;
    Setting<"TickLocation", std::int32_t, &LinearGauge::TickLocation> TickLocation;

    using ElementOn::ElementOn;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<LinearGauge> Prototype();

private:
    // Lighter than the angular meter's. It doesn't hear of other decimal places either.
    Color MutedColor() const noexcept override { return Color{0x00E0E0E0}; }
};

} // namespace quor
