#include "metafile/metafile_header.h"

#include "metafile/enhanced_types.h"
#include "metafile/record_fields.h"

#include <cstddef>

namespace quor {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t enhancedSign = 0x464D4520; // " EMF"
constexpr std::size_t enhancedSignOffset = 40;
constexpr std::size_t enhancedHeaderSize = 88;
constexpr std::uint32_t placeableSign = 0x9AC6CDD7;
constexpr std::size_t placeableHeaderSize = 22;
constexpr std::size_t plainHeaderSize = 18; // of the metafile behind it
constexpr double pixelsPerInch = 96;

bool EnhancedRecordsAreSound(Bytes bytes) noexcept
{
    while (bytes.size() >= 8) {
        const RecordFields record(bytes);
        const std::uint32_t size = record.Long(4);
        if (size < 8 || size % 4 != 0 || size > bytes.size()) {
            return false;
        }
        if (record.Long(0) == enhanced_types::endOfFile) {
            return true;
        }
        bytes = bytes.subspan(size);
    }
    return false;
}

// Record sizes are in words; the last record has the function 0.
bool PlaceableRecordsAreSound(Bytes bytes) noexcept
{
    for (bytes = bytes.subspan(placeableHeaderSize + plainHeaderSize); bytes.size() >= 6;) {
        const RecordFields record(bytes);
        const std::size_t words = record.Long(0);
        if (words < 3 || words > bytes.size() / 2) {
            return false;
        }
        if (record.Word(4) == 0) {
            return true;
        }
        bytes = bytes.subspan(2 * words);
    }
    return false;
}

MetafileHeader EnhancedHeader(const RecordFields& fields) noexcept
{
    constexpr double frameUnitsPerInch = 2540; // the frame is in hundredths of a millimetre
    constexpr std::size_t frame = 24;
    const auto pixels = [&](std::size_t offset) {
        const double begin = fields.SignedLong(offset);
        return (fields.SignedLong(offset + 8) - begin) / frameUnitsPerInch * pixelsPerInch;
    };
    return {MetafileKind::Enhanced, pixels(frame), pixels(frame + 4)};
}

MetafileHeader PlaceableHeader(const RecordFields& fields) noexcept
{
    constexpr std::size_t box = 6;
    const double unitsPerInch = fields.Word(14);
    const double scale = unitsPerInch == 0 ? 0 : pixelsPerInch / unitsPerInch;
    return {MetafileKind::Placeable, (fields.Signed(box + 4) - fields.Signed(box)) * scale,
            (fields.Signed(box + 6) - fields.Signed(box + 2)) * scale};
}

} // namespace

std::optional<MetafileKind> MetafileKindOf(Bytes bytes) noexcept
{
    const RecordFields fields(bytes);
    if (fields.Long(0) == placeableSign) {
        return MetafileKind::Placeable;
    }
    if (fields.Long(0) == enhanced_types::header && fields.Long(enhancedSignOffset) == enhancedSign) {
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
    const MetafileHeader header =
        isEnhanced ? EnhancedHeader(RecordFields(bytes)) : PlaceableHeader(RecordFields(bytes));
    return header.width > 0 && header.height > 0 ? std::optional(header) : std::nullopt;
}

} // namespace quor
