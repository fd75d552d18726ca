#pragma once
// A round lamp: lit in one colour, unlit in another that it can work out by itself.

#include "widgets/bevels.h"
#include "widgets/widget.h"

namespace quor {

class RoundLed final : public WidgetOf<RoundLed> {
public:
    Property<"Active", bool> Active;
    Property<"ActiveColor", Color> ActiveColor{Color{0x0000FF00}};
    Property<"InactiveColor", Color> InactiveColor{Color{0x00006600}};
    Property<"AutoInactiveColor", bool> AutoInactiveColor{true}; // InactiveColor is ignored
    Property<"ShowReflection", bool> ShowReflection{true};
    Property<"BevelStyle", std::int32_t> BevelStyle{bevels::lowered};
    Property<"Transparent", bool> Transparent{true};

    bool MayBeReordered() const override { return false; }
    void VisitProperties(PropertyVisitor& visitor) const override;
};

// The unlit colour that a lamp works out from its lit one: 40 % of each channel.
Rgb UnlitColor(Rgb lit) noexcept;

} // namespace quor
