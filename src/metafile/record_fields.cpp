#include "metafile/record_fields.h"

#include "base/text.h"

#include <algorithm>

namespace quor {

using Bytes = std::span<const std::uint8_t>;

FieldBox RecordFields::Box(std::size_t offset) const noexcept
{
    return {Signed(offset + 6), Signed(offset + 4), Signed(offset + 2), Signed(offset)};
}

Bytes RecordFields::From(std::size_t offset, std::size_t count) const noexcept
{
    const Bytes rest = m_bytes.subspan(std::min(offset, m_bytes.size()));
    return rest.first(std::min(count, rest.size()));
}

std::vector<std::uint8_t> WideText(Bytes letters)
{
    std::vector<std::uint8_t> wide(2 * letters.size());
    for (std::size_t index = 0; index < letters.size(); ++index) {
        StoreNumber(wide.data() + 2 * index, static_cast<std::uint16_t>(FromAnsi(letters[index])));
    }
    return wide;
}

std::size_t BitmapHeadSize(Bytes bitmap) noexcept
{
    constexpr std::size_t headerSize = 40;
    constexpr std::size_t maskSize = 12;
    constexpr std::uint32_t masked = 3; // a compression: three masks are behind the header
    const RecordFields fields(bitmap);
    if (bitmap.size() < headerSize || fields.Long(0) != headerSize) {
        return 0;
    }
    const std::uint16_t depth = fields.Word(14);
    const std::size_t most = depth <= 8 ? std::size_t{1} << depth : 0;
    const std::size_t told = fields.Long(32);
    const std::size_t colors = told == 0 ? most : std::min(told, most);
    const std::size_t size = headerSize + 4 * colors + (fields.Long(16) == masked ? maskSize : 0);
    return size < bitmap.size() ? size : 0;
}

} // namespace quor
