#include "pages/frm_cv_picture.h"

namespace quor {

frmCVPicture::frmCVPicture(PageHost& host) : ElementPage("frmCVPicture", host)
{
    using E = clsPicture;
    CheckedPictureRow("txtImage", "cmdBrwsImage", "Image File:", &E::PictureFile);
    ListRow("cboFillStyle", "Fill Style:", {"Centered", "Stretched", "Tiled"}, &E::PictureFillMode);
    MaskRows("chkUseMask", &E::PictureUseMask, "clrMask", "cmdBrwsMaskColor", &E::PictureMaskColor);
    ListRow("cboBevelStyle", "Bevel Style:", {"None", "Lowered", "Raised"}, &E::BevelStyle);
    DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
    ArrangeLines();
}

} // namespace quor
