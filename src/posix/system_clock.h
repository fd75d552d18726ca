#pragma once
// The machine's local time.

#include "platform/clock.h"

#include <ctime>

namespace quor {

// Such as "3/7/2026 9:05:00 PM", in at most 22 characters.
std::string GeneralDate(const std::tm& time);

class SystemClock final : public Clock {
public:
    std::string Now() override;
};

} // namespace quor
