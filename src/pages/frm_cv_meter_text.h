#pragma once
// The page of the text meter.

#include "elements/meter_text.h"
#include "pages/page.h"

namespace quor {

class frmCVMeterText final : public ElementPage<clsMeterText> {
public:
    explicit frmCVMeterText(PageHost& host);
};

} // namespace quor
