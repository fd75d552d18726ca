#pragma once
// A login whose user a test logs on and off.

#include "platform/login.h"

#include <set>

namespace quor {

class FakeLogin final : public QuorLogin {
public:
    bool isLoggedOn = true;
    std::set<std::int16_t> rightsHeld = {rights::issueCommands, rights::runMacros, rights::clearAlarms,
                                         rights::editViews};
    int dialogsShown = 0;
    Event<> LogOnShown;

    // The user answers the logon dialog.
    void EndLogOn(bool success)
    {
        isLoggedOn = isLoggedOn || success;
        LogOn.Raise(success);
    }

    void EndSession()
    {
        isLoggedOn = false;
        LogOff.Raise();
    }

    void ShowLogOn(bool) override
    {
        ++dialogsShown;
        LogOnShown.Raise();
    }
    bool IsLoggedOn() override { return isLoggedOn; }
    bool HasPrivilege(std::int16_t right) override { return isLoggedOn && rightsHeld.contains(right); }
};

} // namespace quor
