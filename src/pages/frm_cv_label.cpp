#include "pages/frm_cv_label.h"

namespace quor {

frmCVLabel::frmCVLabel(PageHost& host) : LabelPage("frmCVLabel", host)
{
    GroundRows();
    FrameLine("fraText", "Text");
    TextRow("txtCaption", "Caption:", &clsLabel::Caption);
    TextRows();
    ArrangeLines();
}

} // namespace quor
