#pragma once
// Metafiles of both kinds as SVG.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace quor {

// The records as those of an enhanced metafile; none if it is no metafile or an unsound one.
std::vector<std::uint8_t> EnhancedRecords(std::span<const std::uint8_t> bytes);

// In that many pixels; empty if the records can't be read. The library may end the process over a broken file, and
// hands on texts and names as they are: what it makes may lead anywhere.
std::string SvgOfRecords(std::vector<std::uint8_t> records, int width, int height);

} // namespace quor
