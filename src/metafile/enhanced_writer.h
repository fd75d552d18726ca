#pragma once
// Writes an enhanced metafile: its header, then record after record.

#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace quor {

class EnhancedWriter {
public:
    // Of so many pixels at 96 an inch.
    EnhancedWriter(double pixelWidth, double pixelHeight);

    // A record of 32-bit numbers, and bytes behind them.
    void Add(std::uint32_t type, std::span<const std::int64_t> numbers, std::span<const std::uint8_t> bytes = {});
    void Add(std::uint32_t type, std::initializer_list<std::int64_t> numbers, std::span<const std::uint8_t> bytes = {})
    {
        Add(type, std::span(numbers.begin(), numbers.size()), bytes);
    }

    // How letters are drawn: height, width, escapement, orientation and weight; the eight bytes behind them, of which
    // the first is whether they slant; and the name of the typeface, cut to what the record takes.
    void AddFont(std::int64_t handle, const std::array<std::int64_t, 5>& measures, std::span<const std::uint8_t> flags,
                 std::span<const std::uint8_t> wideName);
    // Letters of two bytes each; none are no record.
    void AddText(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> wideLetters);

    // With the last record, and the header completed.
    std::vector<std::uint8_t> Finish();

private:
    void Put(std::int64_t number); // its lower 32 bits

    std::vector<std::uint8_t> m_bytes;
    std::uint32_t m_records = 0;
};

} // namespace quor
