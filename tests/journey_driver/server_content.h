#pragma once
// The server of a journey: what it holds, and the events that it raises.

#include "tests/journey_driver/arguments.h"

#include <string_view>

namespace quor {

class Stage;
class FakeServer;

// Fails with JourneyError for a text that is no server file.
void HoldSites(FakeServer& server, std::string_view json);

// The event's name and its arguments, in their order. Fail with JourneyError where there is no such event, or it has
// other arguments.
void CheckEvent(const Arguments& arguments);
void RaiseEvent(Stage& stage, const Arguments& arguments);

} // namespace quor
