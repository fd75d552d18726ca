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

Area AngularGauge::PartOf(const void* property) const
{
    if (property != &Position) {
        return Bounds();
    }
    const double width = Width() / twipsPerPixelX;
    const double height = Height() / twipsPerPixelY;
    const ArcLayout arc = ArcOf(*this, width, height, 1);
    return PixelsWithin(PointerBounds(PointerOutline(*this, arc), arc));
}

} // namespace quor
