#include "widgets/scale_gauge.h"

#include "widgets/outline.h"

#include <algorithm>
#include <cmath>

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

Area ScaleGauge::PointerPart() const
{
    if (m_last.look != Look() || m_last.position != Position() || m_last.bounds != Bounds()) {
        m_last.part = PlacePointer();
        m_last.look = Look();
        m_last.position = Position();
        m_last.bounds = Bounds();
    }
    return m_last.part;
}

Area ScaleGauge::PixelsWithin(const Extent& pixels) const
{
    const auto twips = [](double pixel, float all) {
        return std::clamp(static_cast<float>(pixel) * twipsPerPixelX, 0.0F, std::max(0.0F, all));
    };
    const float left = twips(std::floor(pixels.left) - 1, Width());
    const float top = twips(std::floor(pixels.top) - 1, Height());
    return {Left() + left, Top() + top, twips(std::ceil(pixels.right) + 1, Width()) - left,
            twips(std::ceil(pixels.bottom) + 1, Height()) - top};
}

} // namespace quor
