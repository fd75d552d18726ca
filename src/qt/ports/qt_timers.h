#pragma once
// Timers of the event loop.

#include "platform/timer.h"

namespace quor {

class QtTimers final : public Timers {
public:
    std::unique_ptr<Timer> Make() override;
};

} // namespace quor
