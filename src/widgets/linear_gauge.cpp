#include "widgets/linear_gauge.h"

#include <utility>

namespace quor {

void LinearGauge::VisitProperties(PropertyVisitor& visitor) const
{
    ScaleGauge::VisitProperties(visitor);
    VisitEach(visitor, Orientation, TickLocation, PointerOffset, EndsMargin, ShowTicksAxis);
}

void LinearGauge::Stored(const void* property)
{
    if (property == &Orientation) {
        Invalidate();
        std::swap(PropertyAccess::Value(Width), PropertyAccess::Value(Height));
    }
}

} // namespace quor
