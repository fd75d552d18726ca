#pragma once
// The login of a machine without the product's own: whoever sits at the desktop is logged on and holds all rights.

#include "platform/login.h"

namespace quor {

class DesktopLogin final : public QuorLogin {
public:
    void ShowLogOn(bool /*show*/) override { LogOn.Raise(true); }
    bool IsLoggedOn() override { return true; }
    bool HasPrivilege(std::int16_t /*right*/) override { return true; }
};

} // namespace quor
