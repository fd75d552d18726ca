#pragma once
// The command with LED: a button that carries a click action, with a lamp for a status bit of its own.

#include "elements/action_button.h"
#include "elements/status_element.h"
#include "widgets/switch_led.h"

#include <memory>

namespace quor {

class clsCmdLED final : public ActionButton<SwitchLed, StatusElement> {
public:
    static constexpr std::uint8_t type = 7;

    Setting<"LEDColor", Color, &SwitchLed::LEDColor> LEDColor;
    Setting<"LEDAlignment", std::int32_t, &SwitchLed::LEDAlignment> LEDAlignment;
    Setting<"CaptionColor", Color, &SwitchLed::CaptionColor> CaptionColor;
    Setting<"CaptionFont", Font, &SwitchLed::CaptionFont> CaptionFont;

    using ActionButton::ActionButton;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;
    void UpdateFont() { CaptionFont.Show(*this); }
    void ClickControl() override;

    // A new element's widget.
    static std::unique_ptr<SwitchLed> Prototype();

private:
    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override;
};

} // namespace quor
