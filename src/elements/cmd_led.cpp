#include "elements/cmd_led.h"

namespace quor {

void clsCmdLED::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(LEDColor, LEDAlignment, AutoCaption, CaptionColor);
    record.OwnName(ObjName);
    record(Caption, CaptionFont);
    SourceFields(record);
}

void clsCmdLED::ReadControlProps()
{
    TakeExtents();
    Take(*this, LEDColor, LEDAlignment, Caption, CaptionColor, CaptionFont);
}

// The lamp's state isn't written: it stays as it is until the first value.
void clsCmdLED::WriteControlProps()
{
    ShowExtents();
    Show(*this, LEDColor, LEDAlignment, Caption, CaptionColor, CaptionFont);
}

void clsCmdLED::ClickControl()
{
    Shown().Click();
    // The lamp shows the source's value, not the click.
    Shown().Set(&SwitchLed::Active, BlnDataSource.blnValue());
}

void clsCmdLED::m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute)
{
    TakeValue(blnValue);
    Shown().Set(&SwitchLed::Active, blnValue); // on every call
    if (MuteChanges(blnMute)) {
        Shown().Set(&SwitchLed::LEDColor, blnMute ? colors::buttonFace : LEDColor());
    }
    Shown().RepaintNow();
    SetMute(blnMute);
}

std::unique_ptr<SwitchLed> clsCmdLED::Prototype()
{
    auto widget = std::make_unique<SwitchLed>();
    widget->Move(0, 0, 1575, 495);
    widget->Set(&SwitchLed::Caption, "On");
    return widget;
}

} // namespace quor
