#pragma once
// The picture: one picture file as the ground of a panel.

#include "elements/file_picture.h"
#include "widgets/panel.h"

#include <memory>

namespace quor {

class clsPicture final : public PictureElement<ElementOn<Panel>> {
public:
    static constexpr std::uint8_t type = 9;

    Setting<"BevelStyle", std::int32_t, &Panel::BevelStyle> BevelStyle;
    Setting<"PictureFillMode", std::int32_t, &Panel::PictureFillModeCode> PictureFillMode;
    Setting<"PictureMaskColor", Color, &Panel::PictureMaskColorValue> PictureMaskColor;
    Setting<"PictureUseMask", bool, &Panel::PictureUseMaskFlag> PictureUseMask;
    Setting<"BGColor", Color, &Panel::BackColor> BGColor;
    Setting<"PictureFile", std::string, &Panel::PanelPicture, FromFile> PictureFile; // a path

    using PictureElement::PictureElement;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<Panel> Prototype();
};

} // namespace quor
