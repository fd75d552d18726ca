#include "widgets/linear_layout.h"

#include "widgets/linear_gauge.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr double parkedBeyond = 6; // pixels
constexpr double partedBy = 6;
constexpr double mostPixels = 10'000;

double Whole(double pixels, double scale) noexcept
{
    return std::round(std::clamp(pixels, -mostPixels, mostPixels) * scale);
}

void LayOutAlong(LinearLayout& layout, const LinearGauge& gauge, double along, double scale) noexcept
{
    const double most = std::floor(along * 0.3); // a small gauge has a scale too
    const double margin = std::clamp(Whole(gauge.EndsMargin(), scale), 0.0, most);
    layout.isVertical = gauge.Orientation() == orientations::vertical;
    layout.start = layout.isVertical ? along - margin : margin;
    layout.end = along - layout.start;
}

// From the side that is away from the numbers to theirs: what stands out of the band, band, gap, number.
void LayOutAcross(LinearLayout& layout, const LinearGauge& gauge, const LinearRoom& room) noexcept
{
    const double pointer =
        Whole(gauge.PointerOffset(), room.scale) + Whole(std::max<double>(gauge.PointerSize(), 0), room.scale);
    const double gap = room.numberSize > 0 ? Whole(gauge.TickLabelMargin() + 1.0, room.scale) : 0;
    const double numbers = std::max(0.0, gap + room.numberSize);
    const double free = std::max(0.0, room.across - 2 * room.edge);
    const double band =
        std::min(Whole(std::max<double>(gauge.SectionBandWidth(), 0), room.scale), std::max(0.0, free - numbers));
    const double outside = std::max(0.0, pointer - band);
    const double before = std::floor((free - outside - band - numbers) / 2);
    const double bandEnd = room.edge + std::min(std::max(0.0, before) + outside + band, free - numbers);
    const auto placed = [&](double fromOtherSide, double length) {
        return layout.areNumbersLow ? room.across - fromOtherSide - length : fromOtherSide;
    };
    layout.bandLow = placed(bandEnd - band, band);
    layout.bandHigh = layout.bandLow + band;
    layout.scaleLine = layout.areNumbersLow ? layout.bandLow : layout.bandHigh;
    layout.numberLow = placed(bandEnd + gap, room.numberSize);
    layout.doNumbersFit = room.numberSize > 0 && gap + room.numberSize <= free;
}

void PlaceNumbers(LinearLayout& layout, const LinearRoom& room) noexcept
{
    const double least = room.edge + room.scale;
    const double most = room.along - least;
    layout.startLow = std::round(KeptWithin(layout.start, room.startSize, least, most));
    layout.endLow = std::round(KeptWithin(layout.end, room.endSize, least, most));
    const bool isStartLow = layout.start <= layout.end;
    const double lowEnd = isStartLow ? layout.startLow + room.startSize : layout.endLow + room.endSize;
    const double highStart = isStartLow ? layout.endLow : layout.startLow;
    const double gap = layout.isVertical ? partedBy / 2 : partedBy;
    layout.doNumbersFit = layout.doNumbersFit && lowEnd + gap * room.scale <= highStart;
    layout.doNumbersFit = room.doNumbersFit.value_or(layout.doNumbersFit);
}

} // namespace

double LinearLayout::At(double way) const noexcept
{
    return std::round(start + way * (end - start));
}

double LinearLayout::Marked(const ScalePlace& place, double width, double scale) const noexcept
{
    const double low = std::min(start, end);
    const double high = std::max(start, end);
    if (place.beyond != 0) {
        const bool isLow = (place.beyond < 0) == (start <= end);
        const double apart = std::round(parkedBeyond * scale);
        return isLow ? low - apart - width : high + apart;
    }
    const double first = std::floor(start + place.way * (end - start) - width / 2 + 0.5);
    return std::clamp(first, low, std::max(low, high - width));
}

LinearLayout LayOut(const LinearGauge& gauge, const LinearRoom& room) noexcept
{
    LinearLayout layout{};
    layout.areNumbersLow = gauge.TickLocation() == tick_locations::topLeft;
    LayOutAlong(layout, gauge, room.along, room.scale);
    LayOutAcross(layout, gauge, room);
    PlaceNumbers(layout, room);
    if (!layout.doNumbersFit && room.numberSize > 0) {
        LinearRoom without = room;
        without.numberSize = 0;
        LayOutAcross(layout, gauge, without);
    }
    return layout;
}

double PointerBase(const LinearGauge& gauge, double scale) noexcept
{
    const double size = std::clamp<double>(gauge.PointerSize(), 0, mostPixels);
    return size == 0 ? 0 : size * scale + std::max(1.0, std::round(scale));
}

Stretch PointerStretch(const LinearGauge& gauge, double along, double scale) noexcept
{
    LinearLayout layout{};
    LayOutAlong(layout, gauge, along, scale);
    const double line = std::max(1.0, std::round(scale));
    const double middle = layout.Marked(PointerPlace(gauge), line, scale) + line / 2;
    const double reach = PointerBase(gauge, scale) / 2 + 4 * scale; // with halo and shadow
    return {middle - reach, middle + reach};
}

} // namespace quor
