#pragma once
// How an element looks whose widget has a caption and a picture on its face, as panels and push buttons have.

#include "elements/element.h"

namespace quor {

// Base is an element on a widget of type Base::WidgetType.
template <class Base, class WordWrapRule> class FaceLook : public Base {
    using W = typename Base::WidgetType;

public:
    Setting<"CaptionColor", Color, &W::ForeColor> CaptionColor;
    Setting<"CaptionWordWrap", bool, &W::CaptionWordWrap, WordWrapRule> CaptionWordWrap;
    Setting<"CaptionAlignment", std::int32_t, &W::CaptionAlignment> CaptionAlignment;
    Setting<"ImageAlignment", std::int32_t, &W::ImageAlignment> ImageAlignment;
    Setting<"ImageUseMask", bool, &W::PictureUseMaskFlag> ImageUseMask;
    Setting<"ImageMaskColor", Color, &W::PictureMaskColorValue> ImageMaskColor;
    Setting<"CaptionFont", Font, &W::Font> CaptionFont;

    using Base::Base;

    void UpdateFont() { CaptionFont.Show(*this); }

protected:
    void LookFields(FieldWalk& record)
    {
        record(CaptionColor, CaptionWordWrap, CaptionAlignment, ImageAlignment, ImageUseMask, ImageMaskColor);
    }
};

} // namespace quor
