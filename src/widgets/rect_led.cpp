#include "widgets/rect_led.h"

namespace quor {

void RectLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, ActiveColor, InactiveColor, AutoInactiveColor, ShowReflection, BevelStyle, Caption,
              CaptionOnColor, CaptionOffColor, CaptionWordWrap, CaptionAlignment, CenterLabelFont);
}

} // namespace quor
