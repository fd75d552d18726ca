#include "widgets/angular_gauge.h"

namespace quor {

void AngularGauge::VisitProperties(PropertyVisitor& visitor) const
{
    ScaleGauge::VisitProperties(visitor);
    VisitEach(visitor, ArcStartDegrees, ArcRangeDegrees, OffsetX, OffsetY, ArcRadius, ShowInnerArcRadius,
              ShowOuterArcRadius, HubSize, HubColor, ShowHub, PointerStyleCode, PointerMargin, TickMajorLength,
              TickMinorLength, TickMinorAlignment, TickMargin, PanelFaceStyle, CurrentMax, CurrentMin);
}

} // namespace quor
