#include "widgets/scale_gauge.h"

namespace quor {

void ScaleGauge::VisitProperties(PropertyVisitor& visitor) const
{
    Widget::VisitProperties(visitor);
    VisitEach(visitor, Position, PositionMax, PositionMin, SectionEnd1, SectionEnd2, SectionEnd3, SectionEnd4,
              SectionColor1, SectionColor2, SectionColor3, SectionColor4, SectionColor5, SectionCount, SectionBandWidth,
              PointerSize, PointerColor, TickMajorCount, TickMinorCount, TickLabelMargin, TickLabelPrecision,
              TickLabelColorValue, TickLabelFont, TickValuesVisible, ShowTicksMajor, ShowTicksMinor, ReverseScaleFlag,
              Transparent, BackGroundColor, BorderStyle);
}

} // namespace quor
