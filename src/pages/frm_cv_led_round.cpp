#include "pages/frm_cv_led_round.h"

namespace quor {

frmCVLEDRound::frmCVLEDRound(PageHost& host) : LampPage("frmCVLEDRound", host)
{
    LampRows();
    ArrangeLines();
}

} // namespace quor
