#pragma once
// Files of the versions 1 and 2 rewritten to the next version: bytes in, bytes out.
//
// The walk knows the record frames alone and inserts the fields that are new at fixed payload offsets. Frames that lead
// out of the file, payloads too short for the insertion and negative sizes fail with 9, a payload that grows too large
// with 6. The old checksum isn't looked at; the new one is right.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// Linear meters get BandWidth 20.
std::vector<std::uint8_t> UpgradeToVersion2(std::span<const std::uint8_t> file);

// Linear meters get TickLocation 0; the ColorInactive of round LEDs grows from one byte to four.
std::vector<std::uint8_t> UpgradeToVersion3(std::span<const std::uint8_t> file);

// The path with its last four characters replaced by ".bak". Fails with 5 for a shorter one.
std::string BackupPath(std::string_view path);

} // namespace quor
