#include "elements/led_round.h"

namespace quor {

void clsLEDRound::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(ColorActive, ColorInactive, AutoInactive, Reflection, BevelStyle);
    record.OwnName(ObjName);
    SourceFields(record);
}

void clsLEDRound::ReadControlProps()
{
    TakeExtents();
    Take(*this, ColorActive, ColorInactive, AutoInactive, Reflection, BevelStyle);
}

void clsLEDRound::WriteControlProps()
{
    ShowExtents();
    Show(*this, AutoInactive, Reflection, BevelStyle, ColorActive, ColorInactive);
    Shown().Set(&RoundLed::Active, IsOn());
}

void clsLEDRound::m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute)
{
    if (TakeValue(blnValue)) {
        Shown().Set(&RoundLed::Active, blnValue);
    }
    MuteLamp(blnMute);
    Shown().RepaintNow();
    SetMute(blnMute);
}

std::unique_ptr<RoundLed> clsLEDRound::Prototype()
{
    auto widget = std::make_unique<RoundLed>();
    widget->Move(0, 0, 255, 255);
    return widget;
}

} // namespace quor
