#pragma once
// The parts of a placeable metafile's record.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quor {

using Bytes = std::span<const std::uint8_t>;

struct FieldBox {
    std::int64_t left;
    std::int64_t top;
    std::int64_t width;
    std::int64_t height;
};

// What lies beyond the bytes reads as 0.
class RecordFields {
public:
    explicit RecordFields(Bytes bytes) : m_bytes(bytes) {}

    std::uint16_t Word(std::size_t offset) const noexcept;
    std::int16_t Signed(std::size_t offset) const noexcept { return static_cast<std::int16_t>(Word(offset)); }
    std::uint32_t Long(std::size_t offset) const noexcept;
    // Height, width, top, left, as these records order them.
    FieldBox Box(std::size_t offset) const noexcept;
    // As many bytes as there are.
    Bytes From(std::size_t offset, std::size_t count = std::dynamic_extent) const noexcept;

private:
    Bytes m_bytes;
};

// The letters of windows-1252 in two bytes each.
std::vector<std::uint8_t> WideText(Bytes letters);

// How many bytes a bitmap's header and colours take, before its pixels; 0 if they aren't there.
std::size_t BitmapHeadSize(Bytes bitmap) noexcept;

} // namespace quor
