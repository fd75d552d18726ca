#pragma once
// The rectangular LED: one status bit as a lamp with a text on its face, one for each state.

#include "elements/caption_pair.h"
#include "elements/lamp_element.h"
#include "widgets/rect_led.h"

#include <memory>

namespace quor {

class clsLEDRect final : public CaptionPair<LampElement<RectLed>, &RectLed::Caption> {
public:
    static constexpr std::uint8_t type = 4;

    Setting<"CaptionOnColor", Color, &RectLed::CaptionOnColor> CaptionOnColor;
    Setting<"CaptionOffColor", Color, &RectLed::CaptionOffColor> CaptionOffColor;
    Setting<"CaptionWordWrap", bool, &RectLed::CaptionWordWrap> CaptionWordWrap;
    Setting<"CaptionAlignment", std::int32_t, &RectLed::CaptionAlignment> CaptionAlignment;
    Setting<"CaptionFont", Font, &RectLed::CenterLabelFont> CaptionFont;

    using CaptionPair::CaptionPair;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;
    void UpdateFont() { CaptionFont.Show(*this); }

    // A new element's widget.
    static std::unique_ptr<RectLed> Prototype();

private:
    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override;
};

} // namespace quor
