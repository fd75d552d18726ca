#include "widgets/switch_led.h"

namespace quor {

void SwitchLed::Click()
{
    if (Enabled()) {
        PropertyAccess::Value(Active) = !Active();
        Invalidate();
    }
}

void SwitchLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, LEDColor, LEDAlignment, Caption, CaptionColor, CaptionFont, CaptionMargin, BorderSize);
}

} // namespace quor
