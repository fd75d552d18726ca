#include "pages/frm_cv_bln_pic.h"

#include "pages/face_items.h"

namespace quor {

frmCVBlnPic::frmCVBlnPic(PageHost& host) : ElementPage("frmCVBlnPic", host)
{
    using E = clsBoolPic;
    DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
    ListRow("cboBevelStyle", "Bevel Style:", {"None", "Lowered", "Raised"}, &E::BevelStyle);
    FrameLine("fraImages", "Images");
    CheckedPictureRow("txtOnImage", "cmdBrwsOnImage", "On Image File:", &E::ImageOn);
    CheckedPictureRow("txtOffImage", "cmdBrwsOffImage", "Off Image File:", &E::ImageOff);
    ListRow("cboImageAlign", "Alignment:", PicturePlaces(), &E::ImageAlignment);
    MaskRows("chkUseMask", &E::ImageUseMask, "clrMask", "cmdBrwsMaskColor", &E::ImageMaskColor);
    FrameLine("fraCaptions", "Captions");
    TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
    TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
    AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                   {"txtCaptionOn", "txtCaptionOff"});
    ColorRow("clrFont", "cmdBrwsFontColor", "Color:", &E::CaptionColor);
    FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFont", &E::CaptionColor);
    ListRow("cboAlignment", "Alignment:", CaptionPlaces(), &E::CaptionAlignment);
    CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
    ArrangeLines();
}

} // namespace quor
