#pragma once
// The numbers of the view file's layout.
//
// Magic, version, record count, record block size, name block size, two lengths; then the view's name and category,
// the record block (the view's record first), the name block (a ZString for each record), and the checksum over both
// blocks. Whole numbers are little-endian, texts are windows-1252, nothing is padded.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quor::view_file {

inline constexpr std::string_view magic = "QUOR4VIEW";
inline constexpr std::uint8_t currentVersion = 3;

// Offsets in the header.
inline constexpr std::size_t versionAt = 9;
inline constexpr std::size_t recordCountAt = 10;
inline constexpr std::size_t recordBlockSizeAt = 14;
inline constexpr std::size_t nameBlockSizeAt = 18;
inline constexpr std::size_t nameLengthAt = 20;
inline constexpr std::size_t categoryLengthAt = 22;
inline constexpr std::size_t headerSize = 24;

inline constexpr std::size_t checksumSize = 4;

// The frame of a record: type byte and 16-bit payload size.
inline constexpr std::size_t frameSize = 3;

// The record of the view itself; the others are 0 to 10, one a kind.
inline constexpr std::uint8_t viewRecord = 255;

} // namespace quor::view_file
