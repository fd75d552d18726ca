#pragma once
// The numbers and bytes of a metafile and of its records.

#include "base/bytes.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quor {

struct FieldBox {
    std::int64_t left;
    std::int64_t top;
    std::int64_t width;
    std::int64_t height;
};

// What lies beyond the bytes reads as 0.
class RecordFields {
public:
    explicit RecordFields(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    std::uint16_t Word(std::size_t offset) const noexcept { return Number<std::uint16_t>(offset); }
    std::int16_t Signed(std::size_t offset) const noexcept { return Number<std::int16_t>(offset); }
    std::uint32_t Long(std::size_t offset) const noexcept { return Number<std::uint32_t>(offset); }
    std::int32_t SignedLong(std::size_t offset) const noexcept { return Number<std::int32_t>(offset); }
    // Height, width, top, left, as these records order them.
    FieldBox Box(std::size_t offset) const noexcept;
    // As many bytes as there are.
    std::span<const std::uint8_t> From(std::size_t offset, std::size_t count = std::dynamic_extent) const noexcept;

private:
    template <class T> T Number(std::size_t offset) const noexcept
    {
        const bool isThere = m_bytes.size() >= sizeof(T) && offset <= m_bytes.size() - sizeof(T);
        return isThere ? LoadNumber<T>(m_bytes.data() + offset) : T{0};
    }

    std::span<const std::uint8_t> m_bytes;
};

// The letters of windows-1252 in two bytes each.
std::vector<std::uint8_t> WideText(std::span<const std::uint8_t> letters);

// How many bytes a bitmap's header and colours take, before its pixels; 0 if they aren't there.
std::size_t BitmapHeadSize(std::span<const std::uint8_t> bitmap) noexcept;

} // namespace quor
