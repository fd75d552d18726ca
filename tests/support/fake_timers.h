#pragma once
// Timers whose time moves only when a test says so.

#include "platform/timer.h"

#include <cstdint>
#include <vector>

namespace quor {

class FakeTimers final : public Timers {
public:
    std::unique_ptr<Timer> Make() override;

    // Time moves on, or stands; due timers fire in the order of their time, then of their making.
    void Advance(int milliseconds);

    // Milliseconds since the beginning.
    std::int64_t Now() const { return m_now; }

private:
    class Each;

    std::vector<Each*> m_timers; // in order of making
    std::int64_t m_now = 0;
};

} // namespace quor
