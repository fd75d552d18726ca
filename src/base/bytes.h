#pragma once
// Whole numbers as little-endian bytes, whatever the machine, and the sum of bytes.

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

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

// Of the unsigned values. Eight at a time: a checksum goes over every byte that is saved or loaded.
inline std::int64_t SumOfBytes(std::span<const std::uint8_t> bytes) noexcept
{
    constexpr std::uint64_t everyOther = 0x00FF00FF00FF00FF;
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    constexpr std::size_t mostWords = 128; // until a lane of 16 bits could overflow
    std::uint64_t sum = 0;
    while (bytes.size() >= wordSize) {
        const std::size_t words = std::min(bytes.size() / wordSize, mostWords);
        std::uint64_t lanes = 0;
        for (std::size_t word = 0; word < words; ++word) {
            const auto eight = LoadNumber<std::uint64_t>(bytes.data() + word * wordSize);
            lanes += (eight & everyOther) + ((eight >> 8U) & everyOther);
        }
        sum += (lanes & 0xFFFFU) + ((lanes >> 16U) & 0xFFFFU) + ((lanes >> 32U) & 0xFFFFU) + (lanes >> 48U);
        bytes = bytes.subspan(words * wordSize);
    }
    for (const std::uint8_t byte : bytes) {
        sum += byte;
    }
    return static_cast<std::int64_t>(sum);
}

} // namespace quor
