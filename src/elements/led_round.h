#pragma once
// The round LED: one status bit as a lamp, lit in ColorActive and unlit in ColorInactive.

#include "elements/status_element.h"
#include "widgets/round_led.h"

#include <memory>

namespace quor {

class clsLEDRound final : public ElementOn<RoundLed, StatusElement> {
public:
    static constexpr std::uint8_t type = 3;

    Setting<"ColorActive", Color, &RoundLed::ActiveColor> ColorActive;
    Setting<"ColorInactive", Color, &RoundLed::InactiveColor> ColorInactive;
    Setting<"AutoInactive", bool, &RoundLed::AutoInactiveColor> AutoInactive; // the widget works ColorInactive out
    Setting<"Reflection", bool, &RoundLed::ShowReflection> Reflection;
    Setting<"BevelStyle", std::int32_t, &RoundLed::BevelStyle> BevelStyle;

    using ElementOn::ElementOn;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;
    void RepaintWhatShowsThrough() override { Shown().RepaintAll(); }

    // A new element's widget.
    static std::unique_ptr<RoundLed> Prototype();

private:
    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override;
};

} // namespace quor
