#pragma once
// How the edge of an instrument looks; the numbers are those of the files.

#include <cstdint>

namespace quor::bevels {
inline constexpr std::int32_t none = 0;
inline constexpr std::int32_t raised = 1;
inline constexpr std::int32_t lowered = 2;
} // namespace quor::bevels
