#pragma once
// The text meter: one value as a number in a box.

#include "elements/meter_element.h"
#include "widgets/analog_display.h"

#include <memory>

namespace quor {

class clsMeterText final : public ElementOn<AnalogDisplay, MeterElement> {
public:
    static constexpr std::uint8_t type = 0;

    Setting<"BGColor", Color, &AnalogDisplay::BackGroundColor> BGColor;
    Setting<"BorderStyle", std::int32_t, &AnalogDisplay::BorderStyle> BorderStyle;
    Setting<"FontColor", Color, &AnalogDisplay::FontColor> FontColor;
    Setting<"FontAlignment", std::int32_t, &AnalogDisplay::Alignment> FontAlignment;
    Setting<"Font", quor::Font, &AnalogDisplay::Font> Font;

    using ElementOn::ElementOn;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;
    void UpdateFont() { Show(*this, Font); }

    // A new element's widget.
    static std::unique_ptr<AnalogDisplay> Prototype();

private:
    void ShowReading(float value) override;
    void ShowMuted(bool isMuted) override;
    void m_MtrDataSource_DecPlacesChanged(std::int16_t intNewVal) override;
};

} // namespace quor
