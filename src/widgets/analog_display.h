#pragma once
// A number in a box.

#include "widgets/bevels.h"
#include "widgets/widget.h"

namespace quor {

namespace number_alignments {
inline constexpr std::int32_t center = 0;
inline constexpr std::int32_t left = 1;
inline constexpr std::int32_t right = 2;
} // namespace number_alignments

class AnalogDisplay final : public WidgetOf<AnalogDisplay, WidgetKind::AnalogDisplay> {
public:
    Property<"DisplayValue", double> DisplayValue;
    Property<"DisplayPrecision", std::int16_t> DisplayPrecision{2}; // decimal places
    Property<"Alignment", std::int32_t> Alignment{number_alignments::center};
    Property<"BackGroundColor", Color> BackGroundColor{Color{0x00FFFFFF}};
    Property<"BorderStyle", std::int32_t> BorderStyle{bevels::lowered};
    Property<"FontColor", Color> FontColor;
    Property<"Font", quor::Font> Font;
    Property<"ErrorActive", bool> ErrorActive; // ErrorText stands in the number's place
    Property<"ErrorText", std::string> ErrorText{"Error"};

    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
