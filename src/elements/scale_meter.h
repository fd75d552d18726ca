#pragma once
// What the meters with a scale have in common: its limits, colours and ends of its sections, pointer and numbers.

#include "base/narrow.h"
#include "elements/meter_element.h"
#include "widgets/scale_gauge.h"

namespace quor {

// A 32-bit setting that a widget shows in double precision.
struct AsDouble : AsItIs {
    static float FromWidget(const Element& /*element*/, double value) { return ToSingle(value); }
};

class ScaleMeter : public ElementOn<ScaleGauge, MeterElement> {
public:
    Setting<"AutoPositions", bool> AutoPositions; // scale and sections follow the channel's limits
    Setting<"PosMax", float, &ScaleGauge::PositionMax, AsDouble> PosMax;
    Setting<"PosMin", float, &ScaleGauge::PositionMin, AsDouble> PosMin;
    Setting<"BorderStyle", std::int32_t, &ScaleGauge::BorderStyle> BorderStyle;
    Setting<"ReverseScale", bool, &ScaleGauge::ReverseScaleFlag> ReverseScale;
    Setting<"BGTransparent", bool, &ScaleGauge::Transparent> BGTransparent;
    Setting<"BGColor", Color, &ScaleGauge::BackGroundColor> BGColor;
    Setting<"PointerColor", Color, &ScaleGauge::PointerColor> PointerColor;
    Setting<"TickVals", bool, &ScaleGauge::TickValuesVisible> TickVals;
    Setting<"BandWidth", std::int16_t, &ScaleGauge::SectionBandWidth> BandWidth;
    Setting<"PointerSize", std::int16_t, &ScaleGauge::PointerSize> PointerSize;
    Setting<"SectionColor1", Color, &ScaleGauge::SectionColor1> SectionColor1;
    Setting<"SectionColor2", Color, &ScaleGauge::SectionColor2> SectionColor2;
    Setting<"SectionColor3", Color, &ScaleGauge::SectionColor3> SectionColor3;
    Setting<"SectionColor4", Color, &ScaleGauge::SectionColor4> SectionColor4;
    Setting<"SectionColor5", Color, &ScaleGauge::SectionColor5> SectionColor5;
    Setting<"SectionEnd1", float, &ScaleGauge::SectionEnd1, AsDouble> SectionEnd1;
    Setting<"SectionEnd2", float, &ScaleGauge::SectionEnd2, AsDouble> SectionEnd2;
    Setting<"SectionEnd3", float, &ScaleGauge::SectionEnd3, AsDouble> SectionEnd3;
    Setting<"SectionEnd4", float, &ScaleGauge::SectionEnd4, AsDouble> SectionEnd4;
    Setting<"TickLabelColor", Color, &ScaleGauge::TickLabelColorValue> TickLabelColor;
    Setting<"TickLabelFont", Font, &ScaleGauge::TickLabelFont> TickLabelFont;

    void UpdateFont() { Show(*this, TickLabelFont); }
    void RepaintWhatShowsThrough() override;

protected:
    using ElementOn::ElementOn;

    // Limits, border and ground, which come first in all three orders. AutoPositions stands in the record alone.
    void ScaleFields(FieldWalk& record);
    void TakeScale();
    void ShowScale();

    // Colours and ends of the sections.
    void SectionFields(FieldWalk& record);
    void TakeSections();
    void ShowSections();

    void ShowPrecision();

    // Of the sections while there is no value to be trusted.
    virtual Color MutedColor() const noexcept = 0;

private:
    void ShowReading(float value) final;
    void ShowMuted(bool isMuted) final;
    void m_MtrDataSource_LabelData(const MeterLabel& label) final;
    void ShowSectionColors();
};

} // namespace quor
