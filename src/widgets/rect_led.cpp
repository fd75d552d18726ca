#include "widgets/rect_led.h"

namespace quor {

void RectLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, ActiveColor, InactiveColor, AutoInactiveColor, ShowReflection, BevelStyle, Caption,
              CaptionOnColor, CaptionOffColor, CaptionWordWrap, CaptionAlignment, CenterLabelFont);
}

LampColor RectLed::Shown() const
{
    return ShownColor(Active(), ActiveColor(), AutoInactiveColor() ? std::nullopt : std::optional(InactiveColor()));
}

} // namespace quor
