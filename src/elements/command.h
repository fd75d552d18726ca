#pragma once
// The command button: a push button that carries a click action.

#include "elements/action_button.h"
#include "elements/face_look.h"
#include "elements/file_picture.h"
#include "widgets/push_button.h"

#include <memory>

namespace quor {

// The button's number is true wherever it isn't 0.
struct FlagAsNonZero : FlagAsNumber {
    template <class E> static bool FromWidget(const E& /*element*/, std::int32_t shown) { return shown != 0; }
};

class clsCommand final : public FaceLook<PictureElement<ActionButton<PushButton>>, FlagAsNonZero> {
public:
    static constexpr std::uint8_t type = 8;

    Setting<"ImageFile", std::string, &PushButton::Picture, FromFile> ImageFile; // a path

    using FaceLook::FaceLook;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<PushButton> Prototype();
};

} // namespace quor
