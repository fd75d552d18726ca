#include "widgets/round_led.h"

#include <cmath>

namespace quor {

void RoundLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, ActiveColor, InactiveColor, AutoInactiveColor, ShowReflection, BevelStyle, Transparent);
}

Rgb UnlitColor(Rgb lit) noexcept
{
    const auto dim = [](std::uint8_t channel) { return static_cast<std::uint8_t>(std::lround(channel * 0.4)); };
    return {dim(lit.red), dim(lit.green), dim(lit.blue)};
}

} // namespace quor
