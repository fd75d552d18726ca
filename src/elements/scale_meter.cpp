#include "elements/scale_meter.h"

#include <algorithm>

namespace quor {

void ScaleMeter::RepaintWhatShowsThrough()
{
    if (BGTransparent()) {
        Shown().RepaintAll();
    }
}

void ScaleMeter::ScaleFields(FieldWalk& record)
{
    record(AutoPositions, PosMax, PosMin, BorderStyle, ReverseScale, BGTransparent, BGColor);
}

void ScaleMeter::TakeScale()
{
    Take(*this, PosMax, PosMin, BorderStyle, ReverseScale, BGTransparent, BGColor);
}

void ScaleMeter::ShowScale()
{
    Show(*this, PosMax, PosMin, BorderStyle, ReverseScale, BGTransparent, BGColor);
}

void ScaleMeter::SectionFields(FieldWalk& record)
{
    record(SectionColor1, SectionColor2, SectionColor3, SectionColor4, SectionColor5, SectionEnd1, SectionEnd2,
           SectionEnd3, SectionEnd4);
}

void ScaleMeter::TakeSections()
{
    Take(*this, SectionColor1, SectionColor2, SectionColor3, SectionColor4, SectionColor5, SectionEnd1, SectionEnd2,
         SectionEnd3, SectionEnd4);
}

void ScaleMeter::ShowSections()
{
    ShowSectionColors();
    Show(*this, SectionEnd1, SectionEnd2, SectionEnd3, SectionEnd4);
}

void ScaleMeter::ShowSectionColors()
{
    Show(*this, SectionColor1, SectionColor2, SectionColor3, SectionColor4, SectionColor5);
}

void ScaleMeter::ShowPrecision()
{
    Shown().Set(&ScaleGauge::TickLabelPrecision, MtrDataSource.DecimalPlaces());
}

void ScaleMeter::ShowReading(float value)
{
    Shown().Set(&ScaleGauge::Position, value);
}

void ScaleMeter::ShowMuted(bool isMuted)
{
    if (!isMuted) {
        ShowSectionColors();
        return;
    }
    const auto fade = [this](auto... sections) { (Shown().Set(sections, MutedColor()), ...); };
    fade(&ScaleGauge::SectionColor1, &ScaleGauge::SectionColor2, &ScaleGauge::SectionColor3, &ScaleGauge::SectionColor4,
         &ScaleGauge::SectionColor5);
}

void ScaleMeter::m_MtrDataSource_LabelData(const MeterLabel& label)
{
    if (!AutoPositions()) {
        return;
    }
    // The band of the limits and a fifth of it on both sides, but no more than the channel can read.
    constexpr double part = 0.2;
    const auto margin = static_cast<float>((double{label.sngSecondUpper} - label.sngSecondLower) * part);
    Set(&ScaleMeter::PosMin, std::max(label.sngSecondLower - margin, label.sngMin));
    Set(&ScaleMeter::PosMax, std::min(label.sngMax, label.sngSecondUpper + margin));
    Set(&ScaleMeter::SectionEnd1, label.sngSecondLower);
    Set(&ScaleMeter::SectionEnd2, label.sngFirstLower);
    Set(&ScaleMeter::SectionEnd3, label.sngFirstUpper);
    Set(&ScaleMeter::SectionEnd4, label.sngSecondUpper);
}

} // namespace quor
