#pragma once
// What has to be loaded before a metafile is drawn by a process that can't open files any more.

#include <cstdint>
#include <span>
#include <vector>

namespace quor {

// A small metafile of our own making that draws a bitmap, and letters in typefaces, which an enhanced metafile names.
// It takes nothing of that one but plain names and letters, and only so many: to draw it loads fonts, converters of
// letters and decoders, and can do no harm. The records are sound.
std::vector<std::uint8_t> RehearsalFor(std::span<const std::uint8_t> records);

} // namespace quor
