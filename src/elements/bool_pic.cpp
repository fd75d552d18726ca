#include "elements/bool_pic.h"

namespace quor {

void clsBoolPic::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(AutoCaption);
    LookFields(record);
    record(BevelStyle, BGColor);
    record.OwnName(ObjName);
    record(CaptionOn, CaptionOff, ImageOn, ImageOff, CaptionFont);
    SourceFields(record);
}

void clsBoolPic::ReadControlProps()
{
    TakeExtents();
    Take(*this, CaptionOn, CaptionOff); // both from the one caption
    Take(*this, CaptionColor, CaptionWordWrap, CaptionAlignment, ImageAlignment, ImageUseMask, ImageMaskColor);
    Take(*this, BevelStyle, BGColor, CaptionFont);
}

void clsBoolPic::WriteControlProps()
{
    ShowExtents();
    ShowCaption();
    const std::string& image = IsOn() ? ImageOn() : ImageOff();
    if (!image.empty()) { // an empty path leaves the widget's picture as it is
        LoadImageFile(image, &Panel::Picture);
    }
    Show(*this, CaptionWordWrap, BGColor, CaptionColor, CaptionAlignment, ImageAlignment, ImageUseMask, ImageMaskColor,
         BevelStyle, CaptionFont);
}

// What isn't to be trusted isn't greyed: the flag is kept, no more.
void clsBoolPic::m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute)
{
    if (TakeValue(blnValue)) {
        ShowCaption();
        IgnoreFailure([&] { Show(*this, ImageOn, ImageOff); }); // the picture of the other state stays
        Shown().RepaintNow();
    }
    SetMute(blnMute);
}

std::unique_ptr<Panel> clsBoolPic::Prototype()
{
    auto widget = std::make_unique<Panel>();
    widget->Move(0, 0, 1575, 1575);
    return widget;
}

} // namespace quor
