#include "apps/metafile/metafile_svg.h"

#include "metafile/metafile_header.h"
#include "metafile/placeable_records.h"

#include <cstdlib>
#include <emf2svg.h>
#include <memory>

namespace quor {

std::vector<std::uint8_t> EnhancedRecords(std::span<const std::uint8_t> bytes)
{
    const std::optional<MetafileHeader> header = ReadMetafile(bytes);
    if (!header) {
        return {};
    }
    return header->kind == MetafileKind::Placeable ? EnhancedFromPlaceable(bytes, header->width, header->height)
                                                   : std::vector<std::uint8_t>(bytes.begin(), bytes.end());
}

std::string SvgOfRecords(std::vector<std::uint8_t> records, int width, int height)
{
    generatorOptions options{};
    options.emfplus = true;
    options.svgDelimiter = true;
    options.imgWidth = width;
    options.imgHeight = height;
    char* text = nullptr;
    std::size_t length = 0;
    const int isDone = emf2svg(reinterpret_cast<char*>(records.data()), records.size(), &text, &length, &options);
    const std::unique_ptr<char, decltype(&std::free)> owner(text, &std::free);
    return isDone != 0 && text != nullptr ? std::string(text, length) : std::string();
}

} // namespace quor
