#pragma once
// The 16 channels of a unit as the bits of a mask.

#include "base/failure.h"

#include <cstdint>

namespace quor {

// The bit of a channel from 1. The mask is taken as a signed number, so that channels 17 to 31 read the sign of channel
// 16. Fails with 11 for channel 0, whose power is 0, and with 6 from 32 on, where the power leaves 32 bits.
inline bool BitOf(std::int16_t mask, std::uint8_t channel)
{
    if (channel == 0) {
        throw Failure(failures::divisionByZero);
    }
    if (channel > 31) {
        throw Failure(failures::overflow);
    }
    return ((std::int32_t{mask} >> (channel - 1)) & 1) != 0;
}

} // namespace quor
