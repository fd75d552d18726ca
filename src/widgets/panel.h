#pragma once
// A bevelled panel with a caption and a picture beside or behind it, or with one picture as its ground.

#include "widgets/face_places.h"
#include "widgets/widget.h"

namespace quor {

// How a panel's edge looks. The numbers are those of the files, in another order than those of lamps.
namespace panel_bevels {
inline constexpr std::int32_t none = 0;
inline constexpr std::int32_t lowered = 1;
inline constexpr std::int32_t raised = 2;
} // namespace panel_bevels

// How the picture that is a panel's ground fills it.
namespace fill_modes {
inline constexpr std::int32_t centered = 0;
inline constexpr std::int32_t stretched = 1;
inline constexpr std::int32_t tiled = 2;
} // namespace fill_modes

class Panel final : public WidgetOf<Panel, WidgetKind::Panel> {
public:
    Property<"Caption", std::string> Caption;
    Property<"ForeColor", Color> ForeColor{colors::buttonText};
    Property<"BackColor", Color> BackColor{colors::buttonFace};
    Property<"Font", quor::Font> Font;
    Property<"CaptionWordWrap", std::int32_t> CaptionWordWrap; // 1 or 0
    Property<"CaptionAlignment", std::int32_t> CaptionAlignment{face_places::centerMiddle};
    Property<"Picture", PictureRef> Picture;
    Property<"ImageAlignment", std::int32_t> ImageAlignment{face_places::centerMiddle};
    Property<"PanelPicture", PictureRef> PanelPicture;                                       // the ground
    Property<"PictureFillModeCode", std::int32_t> PictureFillModeCode{fill_modes::centered}; // of the ground
    // The pixels of that colour in either picture stay unpainted: BackColor shows there.
    Property<"PictureUseMaskFlag", bool> PictureUseMaskFlag;
    Property<"PictureMaskColorValue", Color> PictureMaskColorValue{Color{0x00C0C0C0}};
    Property<"BevelStyle", std::int32_t> BevelStyle{panel_bevels::raised};

    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
