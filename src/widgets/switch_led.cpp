#include "widgets/switch_led.h"

namespace quor {

void SwitchLed::Click()
{
    if (Enabled()) {
        PropertyAccess::Value(Active) = !Active();
        RenewLook();
        Invalidate();
    }
}

void SwitchLed::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Active, LEDColor, LEDAlignment, Caption, CaptionColor, CaptionFont, CaptionMargin, BorderSize);
}

// A muted one looks the same lit and unlit.
LampColor SwitchLed::Shown() const
{
    return ShownColor(Active() || LEDColor() == colors::buttonFace, LEDColor(), std::nullopt);
}

} // namespace quor
