#include "widgets/lamp.h"

#include <cmath>

namespace quor {

LampColor ShownColor(bool isLit, Color lit, std::optional<Color> unlit) noexcept
{
    if (isLit || unlit) {
        const Color shown = isLit ? lit : *unlit;
        return {Resolve(shown), shown == colors::buttonFace};
    }
    const auto dim = [](std::uint8_t channel) { return static_cast<std::uint8_t>(std::lround(channel * 0.4)); };
    const Rgb color = Resolve(lit);
    return {{dim(color.red), dim(color.green), dim(color.blue)}, false};
}

} // namespace quor
