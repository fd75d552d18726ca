#pragma once
// A plain text on the canvas, with a border and a ground if it has any. Disabled, it looks disabled.

#include "widgets/widget.h"

namespace quor {

// The numbers are those of the files.
namespace label_alignments {
inline constexpr std::int16_t left = 0;
inline constexpr std::int16_t right = 1;
inline constexpr std::int16_t center = 2;
} // namespace label_alignments

class TextLabel final : public WidgetOf<TextLabel, WidgetKind::TextLabel> {
public:
    Property<"Caption", std::string> Caption;
    Property<"ForeColor", Color> ForeColor{colors::buttonText};
    Property<"BackColor", Color> BackColor{colors::buttonFace};
    Property<"BackStyle", std::int16_t> BackStyle{std::int16_t{1}}; // 0: without a ground
    Property<"BorderStyle", std::int16_t> BorderStyle;              // 1: with a border
    Property<"Appearance", std::int16_t> Appearance;                // 1: a border is sunken
    Property<"WordWrap", bool> WordWrap;
    Property<"Alignment", std::int16_t> Alignment{label_alignments::left};
    Property<"Font", quor::Font> Font;

    bool MayBeReordered() const override { return false; }
    void VisitProperties(PropertyVisitor& visitor) const override;
};

} // namespace quor
