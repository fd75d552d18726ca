#include "widgets/linear_gauge.h"

#include "widgets/linear_layout.h"
#include "widgets/outline.h"

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
        std::swap(PropertyAccess::Value(Width), PropertyAccess::Value(Height));
    }
}

Area LinearGauge::PlacePointer() const
{
    const double width = Width() / twipsPerPixelX;
    const double height = Height() / twipsPerPixelY;
    const bool isVertical = Orientation() == orientations::vertical;
    const Stretch pointer = PointerStretch(*this, isVertical ? height : width, 1);
    return PixelsWithin(isVertical ? Extent{0, pointer.low, width, pointer.high}
                                   : Extent{pointer.low, 0, pointer.high, height});
}

} // namespace quor
