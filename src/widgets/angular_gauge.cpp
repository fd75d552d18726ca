#include "widgets/angular_gauge.h"

#include "widgets/arc_layout.h"

namespace quor {

void AngularGauge::VisitProperties(PropertyVisitor& visitor) const
{
    ScaleGauge::VisitProperties(visitor);
    VisitEach(visitor, ArcStartDegrees, ArcRangeDegrees, OffsetX, OffsetY, ArcRadius, ShowInnerArcRadius,
              ShowOuterArcRadius, HubSize, HubColor, ShowHub, PointerStyleCode, PointerMargin, TickMajorLength,
              TickMinorLength, TickMinorAlignment, TickMargin, PanelFaceStyle, CurrentMax, CurrentMin);
}

Area AngularGauge::PlacePointer() const
{
    const double width = Width() / twipsPerPixelX;
    const double height = Height() / twipsPerPixelY;
    const ArcLayout arc = ArcOf(*this, width, height, 1);
    return PixelsWithin(PointerBounds(*this, arc));
}

} // namespace quor
