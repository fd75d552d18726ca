#pragma once
// A push button with a caption and a picture. Disabled, it looks disabled.

#include "widgets/face_places.h"
#include "widgets/widget.h"

namespace quor {

class PushButton final : public WidgetOf<PushButton, WidgetKind::PushButton> {
public:
    Property<"Caption", std::string> Caption;
    Property<"ForeColor", Color> ForeColor{colors::buttonText};
    Property<"BackColor", Color> BackColor{colors::buttonFace};
    Property<"Font", quor::Font> Font;
    Property<"CaptionWordWrap", std::int32_t> CaptionWordWrap; // 1 or 0
    Property<"CaptionAlignment", std::int32_t> CaptionAlignment{face_places::centerMiddle};
    Property<"Picture", PictureRef> Picture;
    Property<"ImageAlignment", std::int32_t> ImageAlignment{face_places::leftOfCaption};
    Property<"PictureUseMaskFlag", bool> PictureUseMaskFlag; // the pixels of the colour stay unpainted
    Property<"PictureMaskColorValue", Color> PictureMaskColorValue{Color{0x00C0C0C0}};

    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
