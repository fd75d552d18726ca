#pragma once
// What the gauges with a scale have in common: a pointer at a position, up to five coloured sections, numbers at the
// ends.
//
// Positions and section ends are in the units of what is measured; sizes, widths and margins in pixels.

#include "widgets/bevels.h"
#include "widgets/widget.h"

namespace quor {

struct Extent;

class ScaleGauge : public Widget {
public:
    Property<"Position", double> Position; // may lie off the scale
    Property<"PositionMax", double> PositionMax{100};
    Property<"PositionMin", double> PositionMin;

    // Section 1 runs from PositionMin to SectionEnd1, section 5 from SectionEnd4 to PositionMax.
    Property<"SectionEnd1", double> SectionEnd1{20};
    Property<"SectionEnd2", double> SectionEnd2{40};
    Property<"SectionEnd3", double> SectionEnd3{60};
    Property<"SectionEnd4", double> SectionEnd4{80};
    Property<"SectionColor1", Color> SectionColor1{Color{0x000000FF}};
    Property<"SectionColor2", Color> SectionColor2{Color{0x0000FFFF}};
    Property<"SectionColor3", Color> SectionColor3{Color{0x0000FF00}};
    Property<"SectionColor4", Color> SectionColor4{Color{0x0000FFFF}};
    Property<"SectionColor5", Color> SectionColor5{Color{0x000000FF}};
    Property<"SectionCount", std::int16_t> SectionCount{5};
    Property<"SectionBandWidth", std::int16_t> SectionBandWidth{5};

    Property<"PointerSize", std::int16_t> PointerSize{10};
    Property<"PointerColor", Color> PointerColor;

    Property<"TickMajorCount", std::int16_t> TickMajorCount{2};
    Property<"TickMinorCount", std::int16_t> TickMinorCount{1};
    Property<"TickLabelMargin", std::int16_t> TickLabelMargin{2};
    Property<"TickLabelPrecision", std::int16_t> TickLabelPrecision; // decimal places
    Property<"TickLabelColorValue", Color> TickLabelColorValue;
    Property<"TickLabelFont", Font> TickLabelFont;
    Property<"TickValuesVisible", bool> TickValuesVisible{true};
    Property<"ShowTicksMajor", bool> ShowTicksMajor;
    Property<"ShowTicksMinor", bool> ShowTicksMinor;

    Property<"ReverseScaleFlag", bool> ReverseScaleFlag;
    Property<"Transparent", bool> Transparent; // neither ground nor border
    Property<"BackGroundColor", Color> BackGroundColor{colors::buttonFace};
    Property<"BorderStyle", std::int32_t> BorderStyle{bevels::none};

    bool MayBeReordered() const override { return !Transparent(); }
    void VisitProperties(PropertyVisitor& visitor) const override;

protected:
    bool ChangesLook(const void* property) const override
    {
        return property != &Position && Widget::ChangesLook(property);
    }
    Area PartOf(const void* property) const final { return property == &Position ? PointerPart() : Bounds(); }

    // What the pointer takes at its present position.
    virtual Area PlacePointer() const = 0;

    // What the gauge has to paint of these pixels from its upper left corner, as a place on the canvas.
    Area PixelsWithin(const Extent& pixels) const;

private:
    // The pointer's last place, from where the next value moves it; another gauge finds its own.
    struct LastPointer {
        LastPointer() = default;
        LastPointer(const LastPointer& /*other*/) noexcept {}

        std::uint64_t look = 0;
        double position = 0;
        Area bounds;
        Area part;
    };

    Area PointerPart() const;

    mutable LastPointer m_last;
};

} // namespace quor
