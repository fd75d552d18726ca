#pragma once
// Where values stand on the scale of a gauge, what its sections cover, and how its numbers read. Plain arithmetic that
// holds for whatever numbers a file brings.

#include "base/values.h"

#include <string>
#include <vector>

namespace quor {

class ScaleGauge;

// The way along the scale from its start (0) to its end (1), and beyond which of them the value lies: -1 before the
// start, 1 past the end, 0 on the scale.
struct ScalePlace {
    double way = 0;
    int beyond = 0;
};

// The value's place between two limits, which may be in either order. No number at all lies before the start.
ScalePlace PlaceOn(double first, double last, double value) noexcept;

// Where the gauge's pointer stands.
ScalePlace PointerPlace(const ScaleGauge& gauge) noexcept;

// A run of one colour, as ways along the scale.
struct SectionRun {
    double from;
    double to;
    Color color;
};

// The sections that there is something to see of, from the start of the scale to its end. Neighbours of one colour are
// one run. A section that ends before the one before it ends is empty.
std::vector<SectionRun> SectionRuns(const ScaleGauge& gauge);

// The numbers at the start and the end of the scale.
struct EndNumbers {
    std::string start;
    std::string end;
};
EndNumbers NumbersOf(const ScaleGauge& gauge);

// With a decimal point wherever the program runs; dashes for what is no number.
std::string NumberText(double value, int decimals);

// Stands a stretch of that length about a middle, within limits; at the lower one if it is longer than they allow.
double KeptWithin(double middle, double length, double low, double high) noexcept;

} // namespace quor
