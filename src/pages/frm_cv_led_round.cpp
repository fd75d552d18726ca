#include "pages/frm_cv_led_round.h"

namespace quor {

frmCVLEDRound::frmCVLEDRound(PageHost& host) : ElementPage("frmCVLEDRound", host)
{
    using E = clsLEDRound;
    ListRow("cboBevelStyle", "Bevel Style:", {"None", "Raised", "Lowered"}, &E::BevelStyle);
    ColorRow("clrOn", "cmdBrwsOnColor", "On Color:", &E::ColorActive);
    ColorRow("clrOff", "cmdBrwsOffColor", "Off Color:", &E::ColorInactive);
    CheckRow("chkReflection", "Show Reflection", &E::Reflection);
    AutoColorBox("chkAutoOffColor", "Automatically determine Off Color", &E::AutoInactive, "clrOff", "cmdBrwsOffColor",
                 &E::ColorInactive);
    ArrangeLines();
}

} // namespace quor
