#include "widgets/analog_display.h"

namespace quor {

void AnalogDisplay::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, DisplayValue, DisplayPrecision, Alignment, BackGroundColor, BorderStyle, FontColor, Font,
              ErrorActive, ErrorText);
}

} // namespace quor
