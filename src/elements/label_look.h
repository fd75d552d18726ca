#pragma once
// How an element looks whose widget is a plain label: its text, its ground and its border.

#include "base/narrow.h"
#include "elements/element.h"
#include "widgets/text_label.h"

namespace quor {

// The label has a 16-bit number: a larger one fails.
struct As16Bits : AsItIs {
    static std::int16_t ToWidget(const Element& /*element*/, std::int32_t value) { return Narrow<std::int16_t>(value); }
};

// The label says whether it has a ground, not whether it has none.
struct WithoutGround : AsItIs {
    static std::int16_t ToWidget(const Element& /*element*/, bool transparent) { return transparent ? 0 : 1; }
};

// Base is an element on a TextLabel.
template <class Base> class LabelLook : public Base {
public:
    Setting<"CaptionColor", Color, &TextLabel::ForeColor> CaptionColor;
    Setting<"CaptionWordWrap", bool, &TextLabel::WordWrap> CaptionWordWrap;
    Setting<"CaptionAlignment", std::int32_t, &TextLabel::Alignment, As16Bits> CaptionAlignment;
    Setting<"BGColor", Color, &TextLabel::BackColor> BGColor;
    Setting<"BGTransparent", bool, &TextLabel::BackStyle, WithoutGround> BGTransparent;
    Setting<"Border", bool, &TextLabel::BorderStyle, FlagAsNumber> Border;
    Setting<"Border3D", bool, &TextLabel::Appearance, FlagAsNumber> Border3D;
    Setting<"CaptionFont", Font, &TextLabel::Font> CaptionFont;

    using Base::Base;

    void UpdateFont() { CaptionFont.Show(*this); }

protected:
    void LookFields(FieldWalk& record)
    {
        record(CaptionColor, CaptionWordWrap, CaptionAlignment, BGColor, BGTransparent, Border, Border3D);
    }

    void TakeLook()
    {
        this->Take(*this, CaptionColor, CaptionWordWrap, CaptionAlignment);
        // A new label is transparent, with white in reserve, whatever its widget has.
        PropertyAccess::Value(BGColor) = Color{0x00FFFFFF};
        PropertyAccess::Value(BGTransparent) = true;
        this->Take(*this, Border, Border3D, CaptionFont);
    }

    void ShowTextFlow() { this->Show(*this, CaptionWordWrap, CaptionAlignment); }
    void ShowGround() { this->Show(*this, BGTransparent, Border, Border3D, CaptionFont, CaptionColor, BGColor); }
};

} // namespace quor
