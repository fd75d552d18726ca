#pragma once
// The screen's pointer and the clock, as a test sets and sees them.

#include "base/event.h"
#include "platform/clock.h"
#include "platform/screen.h"

namespace quor {

class FakeScreen final : public Screen {
public:
    MousePointer pointer = MousePointer::Default;
    Event<MousePointer> PointerSet; // to the same as well

    void SetMousePointer(MousePointer to) override
    {
        pointer = to;
        PointerSet.Raise(to);
    }
};

class FakeClock final : public Clock {
public:
    std::string now = "5/17/2024 9:03:07 AM";

    std::string Now() override { return now; }
};

} // namespace quor
