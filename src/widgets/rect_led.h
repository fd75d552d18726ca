#pragma once
// A rectangular lamp with a text on its face.

#include "widgets/bevels.h"
#include "widgets/lamp.h"
#include "widgets/widget.h"

namespace quor {

// Where the text stands on the lamp; the numbers are those of the files.
namespace lamp_alignments {
inline constexpr std::int32_t center = 0;
inline constexpr std::int32_t left = 1;
inline constexpr std::int32_t right = 2;
} // namespace lamp_alignments

class RectLed final : public WidgetOf<RectLed, WidgetKind::RectLed> {
public:
    Property<"Active", bool> Active;
    Property<"ActiveColor", Color> ActiveColor{Color{0x0000FF00}};
    Property<"InactiveColor", Color> InactiveColor{Color{0x00006600}};
    Property<"AutoInactiveColor", bool> AutoInactiveColor{true}; // InactiveColor is ignored
    Property<"ShowReflection", bool> ShowReflection{true};
    Property<"BevelStyle", std::int32_t> BevelStyle{bevels::lowered};
    Property<"Caption", std::string> Caption;
    Property<"CaptionOnColor", Color> CaptionOnColor{Color{0x00000000}};
    Property<"CaptionOffColor", Color> CaptionOffColor{Color{0x00FFFFFF}};
    Property<"CaptionWordWrap", bool> CaptionWordWrap;
    Property<"CaptionAlignment", std::int32_t> CaptionAlignment{lamp_alignments::center};
    Property<"CenterLabelFont", Font> CenterLabelFont;

    LampColor Shown() const;
    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
