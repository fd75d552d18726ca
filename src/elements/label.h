#pragma once
// The label: fixed text on the canvas.

#include "elements/label_look.h"

#include <memory>
#include <string>

namespace quor {

class clsLabel final : public LabelLook<ElementOn<TextLabel>> {
public:
    static constexpr std::uint8_t type = 10;

    Setting<"Caption", std::string, &TextLabel::Caption> Caption;

    using LabelLook::LabelLook;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<TextLabel> Prototype();
};

} // namespace quor
