#pragma once
// The round LED: one status bit as a lamp, lit in ColorActive and unlit in ColorInactive.

#include "elements/lamp_element.h"
#include "widgets/round_led.h"

#include <memory>

namespace quor {

class clsLEDRound final : public LampElement<RoundLed> {
public:
    static constexpr std::uint8_t type = 3;

    using LampElement::LampElement;

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
