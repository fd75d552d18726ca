#pragma once
// All steps, one row each: how it is told, and what it does on the stage.

#include "tests/journey_driver/stage.h"

namespace quor {

struct StepRow {
    std::string_view usage; // see FitsUsage
    void (*act)(Stage& stage, const Arguments& words);
};

// Fails with JourneyError if there is no such step, or its words don't fit.
const StepRow& FindStep(std::span<const Word> words);

// The rows by what they are about.
std::span<const StepRow> PreparingSteps(); // settings, files, failures, answers
std::span<const StepRow> UserSteps();      // start, time, tools, the mouse, close
std::span<const StepRow> FormSteps();      // controls of forms
std::span<const StepRow> LiveSteps();      // the server, the login, views that run
std::span<const StepRow> ShowingSteps();   // print, trace
std::span<const StepRow> SettingSteps();   // settings of elements

} // namespace quor
