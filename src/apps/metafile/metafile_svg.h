#pragma once
// Metafiles of both kinds as SVG.

#include <cstdint>
#include <span>
#include <string>

namespace quor {

// In that many pixels; empty if it is no metafile or can't be read. The library may end the process over a broken file.
std::string SvgOfMetafile(std::span<const std::uint8_t> bytes, int width, int height);

} // namespace quor
