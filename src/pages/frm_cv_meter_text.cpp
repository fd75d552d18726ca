#include "pages/frm_cv_meter_text.h"

namespace quor {

frmCVMeterText::frmCVMeterText(PageHost& host) : ElementPage("frmCVMeterText", host)
{
    using E = clsMeterText;
    DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
    FontRow("txtFont", "cmdBrwsFont", &E::Font, "clrFont", &E::FontColor);
    ColorRow("clrFont", "cmdBrwsFontColor", "Font Color:", &E::FontColor);
    ListRow("cboAlignment", "Alignment:", {"Center", "Left Justify", "Right Justify"}, &E::FontAlignment);
    ListRow("cboBorder", "Border:", {"None", "Raised", "Lowered"}, &E::BorderStyle);
    ReadOrder({"clrBG", "txtFont", "clrFont", "cboAlignment", "cboBorder", "chkBakColorDef"});
    ArrangeLines();
}

} // namespace quor
