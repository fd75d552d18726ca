#pragma once
// The status label: one status bit as one of two texts.

#include "elements/caption_pair.h"
#include "elements/label_look.h"

#include <memory>

namespace quor {

class clsStatusLabel final : public LabelLook<CaptionPair<ElementOn<TextLabel, StatusElement>, &TextLabel::Caption>> {
public:
    static constexpr std::uint8_t type = 5;

    using LabelLook::LabelLook;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<TextLabel> Prototype();

private:
    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override;
};

} // namespace quor
