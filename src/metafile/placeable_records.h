#pragma once
// A placeable metafile, the older kind, as an enhanced one that draws the same.

#include <cstdint>
#include <span>
#include <vector>

namespace quor {

// The bytes are those of a placeable metafile that ReadMetafile took, so wide and high at 96 pixels an inch. Records
// that draw nothing or that are unknown are left out.
std::vector<std::uint8_t> EnhancedFromPlaceable(std::span<const std::uint8_t> bytes, double pixelWidth,
                                                double pixelHeight);

} // namespace quor
