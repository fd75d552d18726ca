// A metafile: the records of an older one become an enhanced one whose records are sound, too.

#include "fuzz/harness.h"
#include "metafile/metafile_header.h"
#include "metafile/placeable_records.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quor;
    const std::span<const std::uint8_t> bytes(data, size);
    const std::optional<MetafileHeader> header = ReadMetafile(bytes);
    if (header && header->kind == MetafileKind::Placeable) {
        const std::vector<std::uint8_t> enhanced = EnhancedFromPlaceable(bytes, header->width, header->height);
        Require(MetafileKindOf(enhanced) == MetafileKind::Enhanced, "the result is an enhanced metafile");
        Require(ReadMetafile(enhanced).has_value(), "its records lie one behind the other, and it has an extent");
    }
    return 0;
}
