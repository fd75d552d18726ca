#pragma once
// The page of the round LED.

#include "elements/led_round.h"
#include "pages/page.h"

namespace quor {

class frmCVLEDRound final : public ElementPage<clsLEDRound> {
public:
    explicit frmCVLEDRound(PageHost& host);
};

} // namespace quor
