#pragma once
// The page of the angular meter.

#include "elements/mtr_angle.h"
#include "pages/scale_meter_page.h"

namespace quor {

class frmCVMeterAngle final : public ScaleMeterPage<clsMtrAngle> {
public:
    explicit frmCVMeterAngle(PageHost& host);

private:
    void ArcRows();
    void DisplayRows();
    void PointerRows();
};

} // namespace quor
