#include "elements/led_rect.h"

namespace quor {

void clsLEDRect::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(ColorActive, ColorInactive, AutoInactive, Reflection, BevelStyle);
    record(AutoCaption, CaptionOnColor, CaptionOffColor, CaptionWordWrap, CaptionAlignment);
    record.OwnName(ObjName);
    record(CaptionOn, CaptionOff, CaptionFont);
    SourceFields(record);
}

void clsLEDRect::ReadControlProps()
{
    TakeExtents();
    Take(*this, ColorActive, ColorInactive, AutoInactive, Reflection, BevelStyle);
    Take(*this, CaptionOnColor, CaptionOffColor, CaptionWordWrap, CaptionAlignment, CaptionFont);
}

void clsLEDRect::WriteControlProps()
{
    ShowExtents();
    Show(*this, BevelStyle, Reflection, AutoInactive, ColorActive, ColorInactive);
    Shown().Set(&RectLed::Active, IsOn());
    Show(*this, CaptionOnColor, CaptionOffColor, CaptionWordWrap, CaptionAlignment, CaptionFont);
    ShowCaption();
}

void clsLEDRect::m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute)
{
    if (TakeValue(blnValue)) {
        Shown().Set(&RectLed::Active, blnValue);
        ShowCaption();
    }
    MuteLamp(blnMute); // the text keeps its colours
    Shown().RepaintNow();
    SetMute(blnMute);
}

std::unique_ptr<RectLed> clsLEDRect::Prototype()
{
    auto widget = std::make_unique<RectLed>();
    widget->Move(0, 0, 1575, 375);
    return widget;
}

} // namespace quor
