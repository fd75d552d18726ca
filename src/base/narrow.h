#pragma once
// Checked conversions between numbers: a value that does not fit fails, it is never cut.

#include "base/failure.h"

#include <cmath>
#include <concepts>
#include <limits>
#include <string>
#include <utility>

namespace quor {

// To the nearest whole number, exact halves to the even one.
inline double RoundHalfEven(double value) noexcept
{
    const double floor = std::floor(value);
    const double part = value - floor;
    if (part != 0.5) {
        return part < 0.5 ? floor : floor + 1;
    }
    return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

// The value in the type To, or failure 6. A floating value is rounded (RoundHalfEven) first.
template <std::integral To, std::integral From> constexpr To Narrow(From value)
{
    if (!std::in_range<To>(value)) {
        throw Failure(failures::overflow, "Overflow: " + std::to_string(value) + " does not fit a whole number of " +
                                              std::to_string(sizeof(To) * 8) + " bits.");
    }
    return static_cast<To>(value);
}

template <std::integral To, std::floating_point From> To Narrow(From value)
{
    const double rounded = RoundHalfEven(static_cast<double>(value));
    constexpr double least = static_cast<double>(std::numeric_limits<To>::min());
    const double beyond = std::ldexp(1.0, std::numeric_limits<To>::digits);
    if (!(rounded >= least && rounded < beyond)) {
        throw Failure(failures::overflow, "Overflow: the number does not fit a whole number of " +
                                              std::to_string(sizeof(To) * 8) + " bits.");
    }
    return static_cast<To>(rounded);
}

// The value as a 32-bit float, or failure 6 where a finite value is too large for one.
inline float ToSingle(double value)
{
    const float single = static_cast<float>(value);
    if (std::isinf(single) && std::isfinite(value)) {
        throw Failure(failures::overflow);
    }
    return single;
}

} // namespace quor
