#pragma once
// Timers: an interval, a switch and an event on the program's one thread.

#include "base/event.h"

#include <memory>

namespace quor {

class Timer {
public:
    virtual ~Timer() = default;

    Event<> Fired; // each time the interval has passed while it is on

    // In milliseconds, over 0.
    virtual void SetInterval(int milliseconds) = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
};

class Timers {
public:
    virtual ~Timers() = default;

    // A new timer, off.
    virtual std::unique_ptr<Timer> Make() = 0;
};

} // namespace quor
