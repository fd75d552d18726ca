#include "elements/mtr_linear.h"

namespace quor {

void clsMtrLinear::Fields(FieldWalk& record)
{
    ExtentFields(record);
    ScaleFields(record);
    record(MeterOrientation, PointerSize, PointerOffset); // PointerColor and TickVals are in no record
    SectionFields(record);
    record(TickLabelColor, TickLabelMargin, BandWidth, TickLocation);
    record.OwnName(ObjName);
    record(TickLabelFont);
    SourceFields(record);
}

void clsMtrLinear::ReadControlProps()
{
    TakeExtents();
    TakeScale();
    TakeSections();
    Take(*this, MeterOrientation, TickLocation, PointerColor, TickVals, BandWidth, PointerSize, PointerOffset,
         TickLabelColor, TickLabelMargin, TickLabelFont);
}

void clsMtrLinear::WriteControlProps()
{
    ShowScale();
    ShowSections();
    Show(*this, MeterOrientation, TickLocation, PointerColor, TickVals, BandWidth, PointerSize, PointerOffset,
         TickLabelColor, TickLabelMargin, TickLabelFont);
    ShowPrecision();
    ShowExtents(); // last, for the gauge has its own idea of them when it is turned
}

std::unique_ptr<LinearGauge> clsMtrLinear::Prototype()
{
    using G = LinearGauge;
    auto widget = std::make_unique<G>();
    widget->Set(&G::Orientation, orientations::horizontal);
    widget->Move(0, 0, 3150, 615);
    widget->Set(&G::SectionBandWidth, 20);
    widget->Set(&G::SectionColor2, Color{0x000080FF});
    widget->Set(&G::SectionColor3, Color{0x0000FFFF});
    widget->Set(&G::SectionColor4, Color{0x0000FFB3});
    widget->Set(&G::SectionColor5, Color{0x0000FF00});
    return widget;
}

} // namespace quor
