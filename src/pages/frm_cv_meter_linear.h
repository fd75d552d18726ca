#pragma once
// The page of the linear meter.

#include "elements/mtr_linear.h"
#include "pages/scale_meter_page.h"

namespace quor {

class frmCVMeterLinear final : public ScaleMeterPage<clsMtrLinear> {
public:
    explicit frmCVMeterLinear(PageHost& host);

private:
    void TakeTurnedSize();
};

} // namespace quor
