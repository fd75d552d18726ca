#include "widgets/round_led.h"

namespace quor {

void RoundLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, ActiveColor, InactiveColor, AutoInactiveColor, ShowReflection, BevelStyle, Transparent);
}

LampColor RoundLed::Shown() const
{
    return ShownColor(Active(), ActiveColor(), AutoInactiveColor() ? std::nullopt : std::optional(InactiveColor()));
}

} // namespace quor
