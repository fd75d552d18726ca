#pragma once
// The login: who is logged on, and with which rights.

#include "base/event.h"

#include <cstdint>

namespace quor {

namespace rights {
inline constexpr std::int16_t issueCommands = 1;
inline constexpr std::int16_t runMacros = 2;
inline constexpr std::int16_t clearAlarms = 3;
inline constexpr std::int16_t editViews = 15;
} // namespace rights

class QuorLogin {
public:
    virtual ~QuorLogin() = default;

    Event<> LogOff;
    Event<bool> LogOn; // a logon attempt ended, with success or without

    // Shows the logon dialog; the answer comes as LogOn. The argument is always true.
    virtual void ShowLogOn(bool show) = 0;
    virtual bool IsLoggedOn() = 0;
    virtual bool HasPrivilege(std::int16_t right) = 0;
};

} // namespace quor
