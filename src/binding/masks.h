#pragma once
// The 16 channels of a unit as the bits of a mask.

#include "base/failure.h"

#include <cstdint>

namespace quor {

// The bit of a channel from 1. A channel that no mask has fails with 11, as the division by its power does.
inline bool BitOf(std::int16_t mask, std::uint8_t channel)
{
    if (channel < 1 || channel > 16) {
        throw Failure(failures::divisionByZero);
    }
    return ((static_cast<std::uint16_t>(mask) >> (channel - 1U)) & 1U) != 0;
}

} // namespace quor
