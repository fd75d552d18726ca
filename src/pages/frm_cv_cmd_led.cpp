#include "pages/frm_cv_cmd_led.h"

namespace quor {

frmCVCmdLED::frmCVCmdLED(PageHost& host) : ElementPage("frmCVCmdLED", host)
{
    using E = clsCmdLED;
    TextRow("txtCaption", "Caption:", &E::Caption);
    AutoCaptionBox("chkAutoCaption", "Automatically set Caption", &E::AutoCaption, {"txtCaption"});
    ColorRow("clrFontColor", "cmdBrwsFontColor", "Font Color:", &E::CaptionColor);
    FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont, "clrFontColor", &E::CaptionColor);
    ColorRow("clrLED", "cmdBrwsLEDColor", "LED Color:", &E::LEDColor);
    ListRow("cboAlignment", "LED Position:", {"Bottom", "Top", "Left", "Right"}, &E::LEDAlignment);
    ArrangeLines();
}

} // namespace quor
