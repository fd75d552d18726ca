#include "pages/frm_cv_command.h"

#include "pages/face_items.h"

namespace quor {

frmCVCommand::frmCVCommand(PageHost& host) : ElementPage("frmCVCommand", host)
{
    using E = clsCommand;
    TextRow("txtCaption", "Caption:", &E::Caption);
    AutoCaptionBox("chkAutoCaption", "Automatically set Caption", &E::AutoCaption, {"txtCaption"});
    ColorRow("clrFontColor", "cmdBrwsFontColor", "Font Color:", &E::CaptionColor);
    FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFontColor", &E::CaptionColor);
    CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
    FrameLine("fraImage", "Image");
    PictureRow("txtImage", "cmdBrwsImage", "Image File:", &E::ImageFile);
    ListRow("cboImageAlign", "Alignment:", PicturePlaces(), &E::ImageAlignment);
    MaskRows("chkUseMask", &E::ImageUseMask, "clrMask", "cmdBrwsMaskColor", &E::ImageMaskColor);
    ArrangeLines();
}

} // namespace quor
