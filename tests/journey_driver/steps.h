#pragma once
// All steps, one row each: the word, the shape of what follows, and what it does on the stage.

#include "tests/journey_driver/arguments.h"

#include <span>
#include <string_view>

namespace quor {

class Stage;

struct StepRow {
    std::string_view word;
    std::string_view shape; // see Arguments
    void (*act)(Stage& stage, const Arguments& arguments);
    void (*check)(const Arguments& arguments) = nullptr; // what the shape can't tell; fails with JourneyError
};

// Fails with JourneyError if there is no such step, or its words don't fit.
const StepRow& FindStep(std::span<const Word> words);

// The rows by what they are about.
std::span<const StepRow> PreparingSteps(); // settings, files, failures, answers
std::span<const StepRow> RunningSteps();   // start, time, tools, close
std::span<const StepRow> LiveSteps();      // the server, the login, views that run
std::span<const StepRow> MouseSteps();     // the canvas, the toolbox, keys
std::span<const StepRow> FormSteps();      // controls of forms
std::span<const StepRow> ShowingSteps();   // print, trace
std::span<const StepRow> SettingSteps();   // settings of elements

} // namespace quor
