#pragma once
// The angular meter: one value as a pointer on an arc.

#include "elements/scale_meter.h"
#include "widgets/angular_gauge.h"

#include <memory>

namespace quor {

// The gauge knows how far its pointer stops short of the arc, the element how long the pointer is.
struct FromTheArc : AsItIs {
    static std::int16_t ToWidget(const Element& element, std::int16_t length) { return Rest(element, length); }
    static std::int16_t FromWidget(const Element& element, std::int16_t margin) { return Rest(element, margin); }

private:
    // What is left of the arc's radius; fails with 6 where that has more than 16 bits.
    static std::int16_t Rest(const Element& element, std::int16_t part);
};

// With another radius the pointer keeps its length.
struct KeepsPointer : AsItIs {
    template <class Element> static void AfterSet(Element& element) { element.PointerLength.Show(element); }
};

struct AsWideFlag : AsItIs {
    static bool ToWidget(const Element& /*element*/, WideFlag value) { return value.value; }
    static WideFlag FromWidget(const Element& /*element*/, bool value) { return {value}; }
};

class clsMtrAngle final : public ElementOn<AngularGauge, ScaleMeter> {
public:
    static constexpr std::uint8_t type = 1;

    Setting<"ShowInnerArc", bool, &AngularGauge::ShowInnerArcRadius> ShowInnerArc;
    Setting<"ShowOuterArc", bool, &AngularGauge::ShowOuterArcRadius> ShowOuterArc;
    Setting<"MtrRange", std::int16_t, &AngularGauge::ArcRangeDegrees> MtrRange;
    Setting<"MtrRadius", std::int16_t, &AngularGauge::ArcRadius, KeepsPointer> MtrRadius;
    Setting<"MtrStart", std::int16_t, &AngularGauge::ArcStartDegrees> MtrStart;
    Setting<"MtrHubSize", std::int16_t, &AngularGauge::HubSize> MtrHubSize;
    Setting<"MtrHubColor", Color, &AngularGauge::HubColor> MtrHubColor;
    Setting<"MtrHubVisible", WideFlag, &AngularGauge::ShowHub, AsWideFlag> MtrHubVisible;
    Setting<"MtrOffsetX", std::int16_t, &AngularGauge::OffsetX> MtrOffsetX;
    Setting<"MtrOffsetY", std::int16_t, &AngularGauge::OffsetY> MtrOffsetY;
    Setting<"PointerStyle", std::int32_t, &AngularGauge::PointerStyleCode> PointerStyle;
    Setting<"PointerLength", std::int16_t, &AngularGauge::PointerMargin, FromTheArc> PointerLength;
    Setting<"LabelMargin", std::int16_t, &AngularGauge::TickLabelMargin> LabelMargin;

    using ElementOn::ElementOn;

    std::uint8_t ElementType() const noexcept override { return type; }
    void Fields(FieldWalk& record) override;
    void ReadControlProps() override;
    void WriteControlProps() override;

    // A new element's widget.
    static std::unique_ptr<AngularGauge> Prototype();

private:
    Color MutedColor() const noexcept override { return colors::buttonFace; }
    void m_MtrDataSource_DecPlacesChanged(std::int16_t /*intNewVal*/) override { ShowPrecision(); }
};

} // namespace quor
