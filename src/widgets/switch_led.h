#pragma once
// A button with a lamp on it. By itself, a click turns the lamp over.

#include "widgets/lamp.h"
#include "widgets/widget.h"

namespace quor {

// At which side of the button the lamp is; the numbers are those of the files.
namespace lamp_sides {
inline constexpr std::int32_t bottom = 0;
inline constexpr std::int32_t top = 1;
inline constexpr std::int32_t left = 2;
inline constexpr std::int32_t right = 3;
} // namespace lamp_sides

class SwitchLed final : public WidgetOf<SwitchLed, WidgetKind::SwitchLed> {
public:
    Property<"Active", bool> Active; // the lamp is lit
    Property<"LEDColor", Color> LEDColor{Color{0x0000FF00}};
    Property<"LEDAlignment", std::int32_t> LEDAlignment{lamp_sides::top};
    Property<"Caption", std::string> Caption;
    Property<"CaptionColor", Color> CaptionColor{colors::buttonText};
    Property<"CaptionFont", Font> CaptionFont;
    Property<"CaptionMargin", std::int32_t> CaptionMargin{2}; // pixels
    Property<"BorderSize", std::int32_t> BorderSize{2};       // pixels

    // As the user does. It turns the lamp over, unless the button is disabled.
    void Click();

    LampColor Shown() const;
    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
