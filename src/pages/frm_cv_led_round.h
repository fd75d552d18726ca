#pragma once
// The page of the round LED.

#include "elements/led_round.h"
#include "pages/lamp_page.h"

namespace quor {

class frmCVLEDRound final : public LampPage<clsLEDRound> {
public:
    explicit frmCVLEDRound(PageHost& host);
};

} // namespace quor
