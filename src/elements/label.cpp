#include "elements/label.h"

namespace quor {

void clsLabel::Fields(FieldWalk& record)
{
    ExtentFields(record);
    LookFields(record);
    record.OwnName(ObjName);
    record(Caption, CaptionFont, ClickAction);
}

void clsLabel::ReadControlProps()
{
    TakeExtents();
    Take(*this, Caption);
    TakeLook();
}

void clsLabel::WriteControlProps()
{
    ShowExtents();
    Show(*this, Caption);
    ShowTextFlow();
    ShowGround();
}

std::unique_ptr<TextLabel> clsLabel::Prototype()
{
    auto widget = std::make_unique<TextLabel>();
    widget->Move(0, 0, 1575, 195);
    widget->Set(&TextLabel::Caption, "Label");
    widget->Set(&TextLabel::BackStyle, 0); // as a new label's settings have it
    return widget;
}

} // namespace quor
