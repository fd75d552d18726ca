#include "elements/status_label.h"

namespace quor {

void clsStatusLabel::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(AutoCaption);
    LookFields(record);
    record.OwnName(ObjName);
    record(CaptionOn, CaptionOff, CaptionFont);
    SourceFields(record);
}

void clsStatusLabel::ReadControlProps()
{
    TakeExtents();
    Take(*this, CaptionOn, CaptionOff); // both from the one caption
    TakeLook();
}

void clsStatusLabel::WriteControlProps()
{
    ShowExtents();
    ShowTextFlow();
    ShowCaption();
    ShowGround();
}

void clsStatusLabel::m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute)
{
    if (TakeValue(blnValue)) {
        ShowCaption();
    }
    if (MuteChanges(blnMute)) {
        Shown().Set(&Widget::Enabled, !blnMute);
    }
    Shown().RepaintNow();
    SetMute(blnMute);
}

std::unique_ptr<TextLabel> clsStatusLabel::Prototype()
{
    auto widget = std::make_unique<TextLabel>();
    widget->Move(0, 0, 1575, 195);
    widget->Set(&TextLabel::Caption, "Status Label");
    widget->Set(&TextLabel::BackStyle, 0); // as a new label's settings have it
    return widget;
}

} // namespace quor
