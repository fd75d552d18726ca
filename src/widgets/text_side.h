#pragma once
// At which side of its room a text stands.

#include <cstdint>

namespace quor {

enum class TextSide { Left, Right, Center };

// Of a setting in which these numbers mean left and right.
constexpr TextSide SideOf(std::int32_t alignment, std::int32_t left, std::int32_t right) noexcept
{
    return alignment == left ? TextSide::Left : alignment == right ? TextSide::Right : TextSide::Center;
}

} // namespace quor
