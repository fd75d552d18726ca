#include "pages/frm_cv_status_label.h"

namespace quor {

frmCVStatusLabel::frmCVStatusLabel(PageHost& host) : LabelPage("frmCVStatusLabel", host)
{
    using E = clsStatusLabel;
    GroundRows();
    FrameLine("fraCaptions", "Captions");
    TextRow("txtCaptionOn", "On Caption:", &E::CaptionOn);
    TextRow("txtCaptionOff", "Off Caption:", &E::CaptionOff);
    AutoCaptionBox("chkAutoCaption", "Automatically set On/Off Captions", &E::AutoCaption,
                   {"txtCaptionOn", "txtCaptionOff"});
    TextRows();
    ArrangeLines();
}

} // namespace quor
