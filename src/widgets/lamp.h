#pragma once
// Which colour a lamp shows.

#include "base/values.h"

#include <optional>

namespace quor {

struct LampColor {
    Rgb color;
    bool isMuted; // flat, as a part of the panel, whose colour it has
};

// Of a lamp that is lit in one colour and unlit in another; without that one, in 40 % of each channel of the first.
LampColor ShownColor(bool isLit, Color lit, std::optional<Color> unlit) noexcept;

} // namespace quor
