#pragma once
// Where captions and pictures stand on panels and push buttons; the numbers are those of the files.

#include <cstdint>

namespace quor::face_places {

inline constexpr std::int32_t leftTop = 0;
inline constexpr std::int32_t leftMiddle = 1;
inline constexpr std::int32_t leftBottom = 2;
inline constexpr std::int32_t rightTop = 3;
inline constexpr std::int32_t rightMiddle = 4;
inline constexpr std::int32_t rightBottom = 5;
inline constexpr std::int32_t centerTop = 6;
inline constexpr std::int32_t centerMiddle = 7;
inline constexpr std::int32_t centerBottom = 8;

// Of pictures alone: beside the caption.
inline constexpr std::int32_t leftOfCaption = 9;
inline constexpr std::int32_t rightOfCaption = 10;
inline constexpr std::int32_t topOfCaption = 11;
inline constexpr std::int32_t bottomOfCaption = 12;

} // namespace quor::face_places
