#include "qt/ports/metafile_header.h"

#include <cstddef>

namespace quor {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t enhancedSign = 0x464D4520; // " EMF"
constexpr std::size_t enhancedSignOffset = 40;
constexpr std::size_t enhancedHeaderSize = 88;
constexpr std::uint32_t enhancedEnd = 14; // the type of the last record
constexpr std::uint32_t placeableSign = 0x9AC6CDD7;
constexpr std::size_t placeableHeaderSize = 22;
constexpr std::size_t plainHeaderSize = 18; // of the metafile behind it
constexpr double pixelsPerInch = 96;

// The callers know that the bytes are there.
std::uint16_t Word(Bytes bytes, std::size_t offset) noexcept
{
    return static_cast<std::uint16_t>(bytes[offset] | bytes[offset + 1] << 8U);
}

std::uint32_t Long(Bytes bytes, std::size_t offset) noexcept
{
    return Word(bytes, offset) | static_cast<std::uint32_t>(Word(bytes, offset + 2)) << 16U;
}

double SignedLong(Bytes bytes, std::size_t offset) noexcept
{
    return static_cast<std::int32_t>(Long(bytes, offset));
}

double SignedWord(Bytes bytes, std::size_t offset) noexcept
{
    return static_cast<std::int16_t>(Word(bytes, offset));
}

bool EnhancedRecordsAreSound(Bytes bytes) noexcept
{
    std::size_t offset = 0;
    while (bytes.size() - offset >= 8) {
        const std::uint32_t size = Long(bytes, offset + 4);
        if (size < 8 || size % 4 != 0 || size > bytes.size() - offset) {
            return false;
        }
        if (Long(bytes, offset) == enhancedEnd) {
            return true;
        }
        offset += size;
    }
    return false;
}

// Record sizes are in words; the last record has the function 0.
bool PlaceableRecordsAreSound(Bytes bytes) noexcept
{
    std::size_t offset = placeableHeaderSize + plainHeaderSize;
    while (bytes.size() - offset >= 6) {
        const std::size_t words = Long(bytes, offset);
        if (words < 3 || words > (bytes.size() - offset) / 2) {
            return false;
        }
        if (Word(bytes, offset + 4) == 0) {
            return true;
        }
        offset += 2 * words;
    }
    return false;
}

MetafileHeader EnhancedHeader(Bytes bytes) noexcept
{
    constexpr double frameUnitsPerInch = 2540; // the frame is in hundredths of a millimetre
    constexpr std::size_t frame = 24;
    return {MetafileKind::Enhanced,
            (SignedLong(bytes, frame + 8) - SignedLong(bytes, frame)) / frameUnitsPerInch * pixelsPerInch,
            (SignedLong(bytes, frame + 12) - SignedLong(bytes, frame + 4)) / frameUnitsPerInch * pixelsPerInch};
}

MetafileHeader PlaceableHeader(Bytes bytes) noexcept
{
    constexpr std::size_t box = 6;
    const double unitsPerInch = Word(bytes, 14);
    const double scale = unitsPerInch == 0 ? 0 : pixelsPerInch / unitsPerInch;
    return {MetafileKind::Placeable, (SignedWord(bytes, box + 4) - SignedWord(bytes, box)) * scale,
            (SignedWord(bytes, box + 6) - SignedWord(bytes, box + 2)) * scale};
}

} // namespace

std::optional<MetafileKind> MetafileKindOf(Bytes bytes) noexcept
{
    if (bytes.size() >= 4 && Long(bytes, 0) == placeableSign) {
        return MetafileKind::Placeable;
    }
    if (bytes.size() >= enhancedSignOffset + 4 && Long(bytes, enhancedSignOffset) == enhancedSign &&
        Long(bytes, 0) == 1) {
        return MetafileKind::Enhanced;
    }
    return std::nullopt;
}

std::optional<MetafileHeader> ReadMetafile(Bytes bytes) noexcept
{
    const std::optional<MetafileKind> kind = MetafileKindOf(bytes);
    if (!kind) {
        return std::nullopt;
    }
    const bool isEnhanced = *kind == MetafileKind::Enhanced;
    const std::size_t least = isEnhanced ? enhancedHeaderSize : placeableHeaderSize + plainHeaderSize;
    if (bytes.size() < least || !(isEnhanced ? EnhancedRecordsAreSound(bytes) : PlaceableRecordsAreSound(bytes))) {
        return std::nullopt;
    }
    const MetafileHeader header = isEnhanced ? EnhancedHeader(bytes) : PlaceableHeader(bytes);
    return header.width > 0 && header.height > 0 ? std::optional(header) : std::nullopt;
}

} // namespace quor
