#include "pages/frm_cv_led_rect.h"

namespace quor {

frmCVLEDRect::frmCVLEDRect(PageHost& host) : LampPage("frmCVLEDRect", host)
{
    using E = clsLEDRect;
    LampRows();
    FrameLine("fraCaptions", "Captions");
    TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
    TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
    ColorRow("clrFontOn", "cmdBrwsFontOn", "On Color:", &E::CaptionOnColor);
    ColorRow("clrFontOff", "cmdBrwsFontOff", "Off Color:", &E::CaptionOffColor);
    FontRow("txtFont", "cmdBrwsFont", &E::CaptionFont);
    ListRow("cboAlignment", "Alignment:", {"Center", "Left Justify", "Right Justify"}, &E::CaptionAlignment);
    AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                   {"txtCaptionOn", "txtCaptionOff"});
    CheckRow("chkWordWrap", "Word Wrap", &E::CaptionWordWrap);
    ArrangeLines();
}

} // namespace quor
