#include "widgets/gauge_scale.h"

#include "widgets/scale_gauge.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace quor {

namespace {

// Such that the difference of two is a number still.
double Bounded(double value) noexcept
{
    constexpr double most = 1e300;
    return std::isnan(value) ? 0 : std::clamp(value, -most, most);
}

} // namespace

ScalePlace PlaceOn(double first, double last, double value) noexcept
{
    if (std::isnan(value)) {
        return {0, -1};
    }
    const double start = Bounded(first);
    const double span = Bounded(last) - start;
    const double along = Bounded(value) - start;
    if (span == 0) {
        return along < 0 ? ScalePlace{0, -1} : along > 0 ? ScalePlace{1, 1} : ScalePlace{};
    }
    const double way = along / span;
    return way < 0 ? ScalePlace{0, -1} : way > 1 ? ScalePlace{1, 1} : ScalePlace{way, 0};
}

ScalePlace PointerPlace(const ScaleGauge& gauge) noexcept
{
    const ScalePlace place = PlaceOn(gauge.PositionMin(), gauge.PositionMax(), gauge.Position());
    return gauge.ReverseScaleFlag() ? ScalePlace{1 - place.way, -place.beyond} : place;
}

std::vector<SectionRun> SectionRuns(const ScaleGauge& gauge)
{
    const std::array ends = {gauge.SectionEnd1(), gauge.SectionEnd2(), gauge.SectionEnd3(), gauge.SectionEnd4()};
    const std::array sections = {gauge.SectionColor1(), gauge.SectionColor2(), gauge.SectionColor3(),
                                 gauge.SectionColor4(), gauge.SectionColor5()};
    const int count = std::clamp<int>(gauge.SectionCount(), 0, static_cast<int>(sections.size()));
    std::vector<SectionRun> runs;
    double from = 0;
    for (int i = 0; i < count && from < 1; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const bool isLast = i == count - 1;
        const double to = isLast ? 1 : PlaceOn(gauge.PositionMin(), gauge.PositionMax(), ends[index]).way;
        if (!(to > from)) {
            continue;
        }
        if (!runs.empty() && Resolve(runs.back().color) == Resolve(sections[index])) {
            runs.back().to = to;
        } else {
            runs.push_back({from, to, sections[index]});
        }
        from = to;
    }
    if (gauge.ReverseScaleFlag()) {
        std::reverse(runs.begin(), runs.end());
        for (SectionRun& run : runs) {
            run = {1 - run.to, 1 - run.from, run.color};
        }
    }
    return runs;
}

EndNumbers NumbersOf(const ScaleGauge& gauge)
{
    EndNumbers numbers = {NumberText(gauge.PositionMin(), gauge.TickLabelPrecision()),
                          NumberText(gauge.PositionMax(), gauge.TickLabelPrecision())};
    if (gauge.ReverseScaleFlag()) {
        std::swap(numbers.start, numbers.end);
    }
    return numbers;
}

std::string NumberText(double value, int decimals)
{
    constexpr double mostInFull = 1e15; // a double has no more digits
    if (!std::isfinite(value)) {
        return "---";
    }
    std::array<char, 64> text;
    const auto end =
        std::abs(value) < mostInFull
            ? std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, std::clamp(decimals, 0, 15))
            : std::to_chars(text.begin(), text.end(), value, std::chars_format::scientific, 2);
    std::string number(text.begin(), end.ptr);
    if (number.front() == '-' && number.find_first_of("123456789") == std::string::npos) {
        number.erase(0, 1);
    }
    return number;
}

double KeptWithin(double middle, double length, double low, double high) noexcept
{
    return std::max(low, std::min(middle - length / 2, high - length));
}

} // namespace quor
