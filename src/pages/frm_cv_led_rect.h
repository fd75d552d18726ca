#pragma once
// The page of the rectangular LED.

#include "elements/led_rect.h"
#include "pages/lamp_page.h"

namespace quor {

class frmCVLEDRect final : public LampPage<clsLEDRect> {
public:
    explicit frmCVLEDRect(PageHost& host);
};

} // namespace quor
