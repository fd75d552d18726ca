#pragma once
// Whole numbers as little-endian bytes, whatever the machine.

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>

namespace quor {

template <std::integral Number> Number LoadNumber(const std::uint8_t* from) noexcept
{
    std::array<std::uint8_t, sizeof(Number)> bytes;
    std::memcpy(bytes.data(), from, sizeof(Number));
    if constexpr (std::endian::native == std::endian::big) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return std::bit_cast<Number>(bytes);
}

template <std::integral Number> void StoreNumber(std::uint8_t* to, Number value) noexcept
{
    auto bytes = std::bit_cast<std::array<std::uint8_t, sizeof(Number)>>(value);
    if constexpr (std::endian::native == std::endian::big) {
        std::reverse(bytes.begin(), bytes.end());
    }
    std::memcpy(to, bytes.data(), sizeof(Number));
}

} // namespace quor
