#pragma once
// A round lamp: lit in one colour, unlit in another that it can work out by itself.

#include "widgets/bevels.h"
#include "widgets/lamp.h"
#include "widgets/widget.h"

namespace quor {

class RoundLed final : public WidgetOf<RoundLed, WidgetKind::RoundLed> {
public:
    Property<"Active", bool> Active;
    Property<"ActiveColor", Color> ActiveColor{Color{0x0000FF00}};
    Property<"InactiveColor", Color> InactiveColor{Color{0x00006600}};
    Property<"AutoInactiveColor", bool> AutoInactiveColor{true}; // InactiveColor is ignored
    Property<"ShowReflection", bool> ShowReflection{true};
    Property<"BevelStyle", std::int32_t> BevelStyle{bevels::lowered};
    Property<"Transparent", bool> Transparent{true};

    LampColor Shown() const;
    bool MayBeReordered() const override { return false; }
    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
