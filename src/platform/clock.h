#pragma once
// The time of day.

#include <string>

namespace quor {

class Clock {
public:
    virtual ~Clock() = default;

    // Date and time in the system's general format.
    virtual std::string Now() = 0;
};

} // namespace quor
