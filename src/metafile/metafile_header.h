#pragma once
// What the first bytes of a metafile say, and whether its records lie one behind the other to the last: what is told
// here holds before anything of the file is drawn.

#include <cstdint>
#include <optional>
#include <span>

namespace quor {

enum class MetafileKind { Enhanced, Placeable };

struct MetafileHeader {
    MetafileKind kind;
    double width; // at 96 pixels an inch
    double height;
};

// None for what begins like no metafile.
std::optional<MetafileKind> MetafileKindOf(std::span<const std::uint8_t> bytes) noexcept;

// None for a metafile with a false length, a record beyond its end, or no extent.
std::optional<MetafileHeader> ReadMetafile(std::span<const std::uint8_t> bytes) noexcept;

} // namespace quor
