// Steps that run the program: its start and end, time, tools, live views.

#include "editor/main_form.h"
#include "forms/bars.h"
#include "tests/journey_driver/stage.h"
#include "tests/journey_driver/steps.h"

namespace quor {

namespace {

// The tail may be told as one word or as several, which single blanks join.
void Start(Stage& stage, const Arguments& arguments)
{
    std::string tail;
    for (const Word& word : arguments.From(0)) {
        tail += (tail.empty() ? "" : " ") + word.text;
    }
    stage.Start(tail);
}

void Wait(Stage& stage, const Arguments& arguments)
{
    const std::int32_t milliseconds = arguments.Integer(0);
    if (milliseconds < 0) {
        throw JourneyError("time moves on, not back");
    }
    stage.timers.Advance(milliseconds);
}

void ClickTool(Stage& stage, const Arguments& arguments)
{
    Bars& bars = stage.Main().abViewEdit();
    if (bars.Tools().Find(arguments[0]) == nullptr) {
        throw JourneyError("no such tool: " + arguments[0]);
    }
    bars.Click(arguments[0]);
}

void ShowTab(Stage& stage, const Arguments& arguments)
{
    stage.Main().abViewEdit().BandOf("bndObjProps").SetCurrentChild(arguments[0]);
}

void Close(Stage& stage, const Arguments& arguments)
{
    const std::string& how = arguments[0];
    if (how == "bar") {
        stage.Main().CloseThroughBar();
    } else if (how == "system") {
        stage.Main().Close(CloseReason::System);
    } else {
        stage.Main().Close(how == "taskmanager" ? CloseReason::TaskManager : CloseReason::User);
    }
}

void OpenLive(Stage& stage, const Arguments& arguments)
{
    stage.OpenLive(arguments[0]);
}

constexpr StepRow rows[] = {
    {"start", "[TAIL...]", Start},
    {"wait", "MS", Wait},
    {"tool", "NAME", ClickTool},
    {"tab", "NAME", ShowTab},
    {"close", "[user|system|taskmanager|bar]", Close},
    {"live", "PATH", OpenLive},
};

} // namespace

std::span<const StepRow> RunningSteps()
{
    return rows;
}

} // namespace quor
