// Steps of a view that runs live: what the server holds and raises, the login's events, clicks.

#include "base/guard.h"
#include "document/view_document.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/server_content.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

void HoldServer(Stage& stage, const Arguments& arguments)
{
    const FakeFiles::Bytes bytes = stage.HostBytes(arguments[0]);
    HoldSites(stage.server, std::string(bytes.begin(), bytes.end()));
}

std::set<std::int16_t> Rights(const Arguments& arguments)
{
    std::set<std::int16_t> rights;
    for (std::size_t index = 1; arguments.Has(index); ++index) {
        std::int16_t right = 0;
        ReadValue(arguments[index], right);
        rights.insert(right);
    }
    return rights;
}

void PrepareLogin(Stage& stage, const Arguments& arguments)
{
    stage.login.isLoggedOn = arguments[0] == "on";
    stage.loginRights = Rights(arguments);
    stage.login.rightsHeld = stage.loginRights;
}

void LogOn(Stage& stage, const Arguments& arguments)
{
    const bool success = arguments[0] == "true";
    if (success) {
        stage.login.rightsHeld = arguments.Has(1) ? Rights(arguments) : stage.loginRights;
    }
    stage.Raise([&] { stage.login.EndLogOn(success); });
}

void LogOff(Stage& stage, const Arguments&)
{
    stage.Raise([&] { stage.login.EndSession(); });
}

// What the host of the widget does at a click; a locked action says why, so a disabled button is asked as well. What
// the server fails to do stays between it and the element.
void Run(Stage& stage, const Arguments& arguments)
{
    if (!stage.IsLive()) {
        throw JourneyError("no view runs live");
    }
    Element& element = stage.ElementOf(arguments[0]);
    const bool hasCtrl = arguments.Has(1);
    if (element.MyControl()->Enabled()) {
        element.ClickControl();
    }
    IgnoreFailure([&] { element.ClickAction.RunCommand(hasCtrl ? clsCmdDataSource::ctrlKey : std::uint8_t{0}); });
}

void Refresh(Stage& stage, const Arguments&)
{
    stage.View().RefreshAll();
}

constexpr StepRow rows[] = {
    {"server", "FILE", HoldServer},
    {"raise", "EVENT [ARG...]", RaiseEvent, CheckEvent},
    {"login", "on|off [RIGHT...]", PrepareLogin},
    {"logon", "true|false [RIGHT...]", LogOn},
    {"logoff", "", LogOff},
    {"run", "NAME [ctrl]", Run},
    {"refresh", "", Refresh},
};

} // namespace

std::span<const StepRow> LiveSteps()
{
    return rows;
}

} // namespace quor
