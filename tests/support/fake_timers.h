#pragma once
// Timers whose time moves only when a test says so.

#include "platform/timer.h"

#include <cstdint>
#include <vector>

namespace quor {

class FakeTimer;

class FakeTimers final : public Timers {
public:
    std::unique_ptr<Timer> Make() override;

    // Time moves on; due timers fire in the order of their time, then of their making.
    void Advance(int milliseconds);

    // Fires what is due by now, once.
    void RunDue();

    // Milliseconds since the beginning.
    std::int64_t Now() const { return m_now; }

private:
    friend class FakeTimer;
    void FireUntil(std::int64_t end);

    std::vector<FakeTimer*> m_timers; // in order of making
    std::int64_t m_now = 0;
};

} // namespace quor
