#pragma once
// The columns of a property page and the sizes of its controls, in pixels.

namespace quor::page_measures {

inline constexpr int controlsAt = 116;
inline constexpr int swatchWidth = 56;
inline constexpr int fieldHeight = 24;
inline constexpr int browseWidth = 28;
inline constexpr int browseGap = 4;

} // namespace quor::page_measures
