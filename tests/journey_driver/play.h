#pragma once
// Plays a journey from its first step to its last.

#include "tests/journey_driver/journey.h"

#include <string>

namespace quor {

// The differences as text, empty if there are none. A journey that is not compared prints its lines as they come.
// Fails with JourneyError, which begins with the number of the line; a journey with a step that isn't one isn't begun.
std::string Play(const Journey& journey, const std::string& path, bool compares);

} // namespace quor
