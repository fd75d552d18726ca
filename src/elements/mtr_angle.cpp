#include "elements/mtr_angle.h"

#include "base/narrow.h"

namespace quor {

std::int16_t FromTheArc::Rest(const Element& element, std::int16_t part)
{
    return Narrow<std::int16_t>(static_cast<const AngularGauge&>(*element.MyControl()).ArcRadius() - part);
}

void clsMtrAngle::Fields(FieldWalk& record)
{
    ExtentFields(record);
    ScaleFields(record);
    record(PointerColor, TickVals, BandWidth, PointerSize);
    SectionFields(record);
    record(TickLabelColor, ShowInnerArc, ShowOuterArc, MtrRange, MtrRadius, MtrStart, MtrHubSize, MtrHubColor,
           MtrHubVisible, MtrOffsetX, MtrOffsetY, PointerStyle, PointerLength, LabelMargin);
    record.OwnName(ObjName);
    record(TickLabelFont);
    SourceFields(record);
}

void clsMtrAngle::ReadControlProps()
{
    TakeExtents();
    TakeScale();
    Take(*this, PointerColor, TickVals, BandWidth, PointerSize);
    TakeSections();
    Take(*this, TickLabelColor, ShowInnerArc, ShowOuterArc, MtrRange, MtrRadius, MtrStart, MtrHubSize, MtrHubColor,
         MtrHubVisible, MtrOffsetX, MtrOffsetY, PointerStyle, LabelMargin, PointerLength, TickLabelFont);
}

void clsMtrAngle::WriteControlProps()
{
    ShowExtents();
    ShowScale();
    Show(*this, PointerColor, TickVals, BandWidth, PointerSize);
    ShowSections();
    Show(*this, TickLabelColor, ShowInnerArc, ShowOuterArc, MtrRange, MtrRadius, MtrStart, MtrHubSize, MtrHubColor,
         MtrHubVisible, MtrOffsetX, MtrOffsetY, PointerStyle, PointerLength, LabelMargin, TickLabelFont);
    ShowPrecision();
}

std::unique_ptr<AngularGauge> clsMtrAngle::Prototype()
{
    using G = AngularGauge;
    auto widget = std::make_unique<G>();
    widget->Move(0, 0, 1575, 1575);
    widget->Set(&G::PositionMax, 10'000);
    widget->Set(&G::SectionEnd1, 3000);
    widget->Set(&G::SectionEnd2, 4000);
    widget->Set(&G::SectionEnd3, 7000);
    widget->Set(&G::SectionEnd4, 8000);
    widget->Set(&G::PointerMargin, -3);
    widget->Set(&G::PointerSize, 4);
    widget->Set(&G::ShowHub, false);
    widget->Set(&G::ShowOuterArcRadius, true);
    widget->Set(&G::OffsetX, -2);
    widget->Set(&G::OffsetY, 2);
    widget->Set(&G::BackGroundColor, colors::window);
    widget->Set(&G::BorderStyle, bevels::lowered);
    widget->Set(&G::TickMinorCount, 7);
    return widget;
}

} // namespace quor
