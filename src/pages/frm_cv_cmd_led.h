#pragma once
// The page of the command with LED.

#include "elements/cmd_led.h"
#include "pages/page.h"

namespace quor {

class frmCVCmdLED final : public ElementPage<clsCmdLED> {
public:
    explicit frmCVCmdLED(PageHost& host);
};

} // namespace quor
