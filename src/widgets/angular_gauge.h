#pragma once
// A gauge on an arc: coloured sections, a pointer that turns, a hub.

#include "widgets/scale_gauge.h"

namespace quor {

namespace pointer_styles {
inline constexpr std::int32_t arrowWithLine = 0;
inline constexpr std::int32_t arrow = 1;
inline constexpr std::int32_t line = 2;
inline constexpr std::int32_t triangle = 3;
} // namespace pointer_styles

namespace tick_alignments {
inline constexpr std::int32_t inside = 0;
inline constexpr std::int32_t center = 1;
inline constexpr std::int32_t outside = 2;
} // namespace tick_alignments

class AngularGauge final : public WidgetOf<AngularGauge, WidgetKind::AngularGauge, ScaleGauge> {
public:
    // Degrees: the start counter-clockwise from the right, the range clockwise from the start.
    Property<"ArcStartDegrees", std::int16_t> ArcStartDegrees{225};
    Property<"ArcRangeDegrees", std::int16_t> ArcRangeDegrees{270};
    // Pixels from the middle of the widget to that of the arc.
    Property<"OffsetX", std::int16_t> OffsetX;
    Property<"OffsetY", std::int16_t> OffsetY;
    Property<"ArcRadius", std::int16_t> ArcRadius{40};
    Property<"ShowInnerArcRadius", bool> ShowInnerArcRadius;
    Property<"ShowOuterArcRadius", bool> ShowOuterArcRadius;

    Property<"HubSize", std::int16_t> HubSize{10}; // diameter
    Property<"HubColor", Color> HubColor{colors::buttonFace};
    Property<"ShowHub", bool> ShowHub{true};

    Property<"PointerStyleCode", std::int32_t> PointerStyleCode{pointer_styles::arrowWithLine};
    Property<"PointerMargin", std::int16_t> PointerMargin; // how far the pointer stops short of the arc

    Property<"TickMajorLength", std::int16_t> TickMajorLength{5};
    Property<"TickMinorLength", std::int16_t> TickMinorLength{2};
    Property<"TickMinorAlignment", std::int32_t> TickMinorAlignment{tick_alignments::outside};
    Property<"TickMargin", std::int16_t> TickMargin;

    Property<"PanelFaceStyle", std::int32_t> PanelFaceStyle; // 0: none
    // Marks that a control of this kind keeps of the highest and lowest position.
    Property<"CurrentMax", double> CurrentMax{100};
    Property<"CurrentMin", double> CurrentMin{100};

    void VisitProperties(PropertyVisitor& visitor) const override;

protected:
    Area PlacePointer() const override;
};

} // namespace quor
