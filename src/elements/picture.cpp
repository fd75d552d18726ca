#include "elements/picture.h"

namespace quor {

void clsPicture::Fields(FieldWalk& record)
{
    ExtentFields(record);
    record(BevelStyle, PictureFillMode, PictureMaskColor, PictureUseMask, BGColor);
    record.OwnName(ObjName);
    record(PictureFile, ClickAction);
}

// A new picture is centred, whatever its widget has.
void clsPicture::ReadControlProps()
{
    TakeExtents();
    Take(*this, BevelStyle, PictureMaskColor, PictureUseMask, BGColor);
}

void clsPicture::WriteControlProps()
{
    ShowExtents();
    Show(*this, BevelStyle, PictureFillMode, PictureMaskColor, PictureUseMask, BGColor);
    if (!PictureFile().empty()) { // an empty path leaves the widget's picture as it is
        LoadImageFile(PictureFile(), &Panel::PanelPicture);
    }
}

std::unique_ptr<Panel> clsPicture::Prototype()
{
    auto widget = std::make_unique<Panel>();
    widget->Move(0, 0, 1575, 1575);
    return widget;
}

} // namespace quor
