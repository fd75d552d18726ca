#pragma once
// The fields that have the same width in every record: how wide, and how they are put and taken.

#include "base/bytes.h"
#include "base/values.h"

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>

namespace quor {

// 0 for the types that have no fixed width.
template <class T> inline constexpr std::size_t fixedWidth = 0;
template <> inline constexpr std::size_t fixedWidth<bool> = 1;
template <> inline constexpr std::size_t fixedWidth<WideFlag> = 2;
template <> inline constexpr std::size_t fixedWidth<std::uint8_t> = 1;
template <> inline constexpr std::size_t fixedWidth<std::int16_t> = 2;
template <> inline constexpr std::size_t fixedWidth<std::int32_t> = 4;
template <> inline constexpr std::size_t fixedWidth<float> = 4;
template <> inline constexpr std::size_t fixedWidth<Color> = 4;

template <std::integral Number> void PutFixed(std::uint8_t* to, Number value) noexcept
{
    StoreNumber(to, value);
}
inline void PutFixed(std::uint8_t* to, bool value) noexcept
{
    *to = value ? 255 : 0;
}
inline void PutFixed(std::uint8_t* to, WideFlag value) noexcept
{
    StoreNumber(to, static_cast<std::int16_t>(value.value ? -1 : 0));
}
inline void PutFixed(std::uint8_t* to, float value) noexcept
{
    StoreNumber(to, std::bit_cast<std::uint32_t>(value));
}
inline void PutFixed(std::uint8_t* to, Color value) noexcept
{
    StoreNumber(to, value.value);
}

// Any non-zero flag is true.
template <std::integral Number> void TakeFixed(const std::uint8_t* from, Number& value) noexcept
{
    value = LoadNumber<Number>(from);
}
inline void TakeFixed(const std::uint8_t* from, bool& value) noexcept
{
    value = *from != 0;
}
inline void TakeFixed(const std::uint8_t* from, WideFlag& value) noexcept
{
    value.value = LoadNumber<std::int16_t>(from) != 0;
}
inline void TakeFixed(const std::uint8_t* from, float& value) noexcept
{
    value = std::bit_cast<float>(LoadNumber<std::uint32_t>(from));
}
inline void TakeFixed(const std::uint8_t* from, Color& value) noexcept
{
    value.value = LoadNumber<std::int32_t>(from);
}

} // namespace quor
