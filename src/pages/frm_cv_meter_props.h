#pragma once
// The page "Positions and Colors" of all meters with a scale: its limits and its sections.

#include "elements/scale_meter.h"
#include "pages/page.h"

namespace quor {

class frmCVMeterProps final : public ElementPage<ScaleMeter> {
public:
    explicit frmCVMeterProps(PageHost& host);

private:
    void ScaleRows();
    template <class S> NumberField& EndField(int index, S ScaleMeter::*setting);
    template <class C> void SectionRow(int number, C ScaleMeter::*color, Control& end);
};

} // namespace quor
