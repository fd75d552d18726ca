#include "elements/command.h"

namespace quor {

void clsCommand::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(AutoCaption);
    LookFields(record);
    record.OwnName(ObjName);
    record(Caption, ImageFile, CaptionFont, ClickAction);
}

void clsCommand::ReadControlProps()
{
    TakeExtents();
    Take(*this, Caption, CaptionColor, CaptionAlignment, ImageAlignment, ImageUseMask, ImageMaskColor, CaptionFont,
         CaptionWordWrap);
}

void clsCommand::WriteControlProps()
{
    ShowExtents();
    Show(*this, Caption, CaptionColor, CaptionAlignment, ImageAlignment, ImageUseMask, ImageMaskColor, CaptionFont,
         CaptionWordWrap);
    if (!ImageFile().empty()) { // an empty path leaves the widget's picture as it is
        LoadImageFile(ImageFile(), &PushButton::Picture);
    }
}

std::unique_ptr<PushButton> clsCommand::Prototype()
{
    auto widget = std::make_unique<PushButton>();
    widget->Move(0, 0, 1575, 375);
    widget->Set(&PushButton::Caption, "Command");
    return widget;
}

} // namespace quor
