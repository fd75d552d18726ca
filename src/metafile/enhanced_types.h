#pragma once
// The types of the records of an enhanced metafile.

#include <cstdint>

namespace quor::enhanced_types {

inline constexpr std::uint32_t header = 1;
inline constexpr std::uint32_t setWindowExtent = 9;
inline constexpr std::uint32_t setWindowOrigin = 10;
inline constexpr std::uint32_t setViewportExtent = 11;
inline constexpr std::uint32_t setViewportOrigin = 12;
inline constexpr std::uint32_t endOfFile = 14;
inline constexpr std::uint32_t setPixel = 15;
inline constexpr std::uint32_t setMapMode = 17;
inline constexpr std::uint32_t setTextColor = 24;
inline constexpr std::uint32_t setGroundColor = 25;
inline constexpr std::uint32_t selectObject = 37;
inline constexpr std::uint32_t createPen = 38;
inline constexpr std::uint32_t createBrush = 39;
inline constexpr std::uint32_t deleteObject = 40;
inline constexpr std::uint32_t rectangle = 43;
inline constexpr std::uint32_t stretchBits = 81;
inline constexpr std::uint32_t createFont = 82;
inline constexpr std::uint32_t textOut = 84;
inline constexpr std::uint32_t polygon = 86;
inline constexpr std::uint32_t polyline = 87;
inline constexpr std::uint32_t polyPolygon = 91;

} // namespace quor::enhanced_types
