#pragma once
// Where the parts of a linear gauge lie: its band, its pointer and the numbers at the ends.
//
// All in whole device pixels from the gauge's upper left corner, as distances along the scale and across it: along is x
// of a horizontal gauge and y of a vertical one.

#include "widgets/gauge_scale.h"

#include <optional>

namespace quor {

class LinearGauge;

// What the layout depends on besides the gauge.
struct LinearRoom {
    double along; // the gauge's own extents
    double across;
    double scale;
    double edge;      // the width of its border
    double startSize; // of the number at the start of the scale, along; 0 for none
    double endSize;
    double numberSize;                               // of the larger one, across; 0 for none
    std::optional<bool> doNumbersFit = std::nullopt; // where that is decided at another scale
};

struct LinearLayout {
    bool isVertical;
    bool areNumbersLow; // at the top or at the left
    double start;       // of the scale; below the end of it for a vertical gauge
    double end;
    double bandLow;
    double bandHigh;  // as the low one for a band without width
    double scaleLine; // the edge of the band at the side of the numbers
    double startLow;  // where the numbers begin along
    double endLow;
    double numberLow;  // and across
    bool doNumbersFit; // all whole

    // Rounded to a pixel.
    double At(double way) const noexcept;
    // The first pixel of a line of that width which marks the place.
    double Marked(const ScalePlace& place, double width, double scale) const noexcept;
    // From the scale line into the band, or out of it if less than 0.
    double Across(double distance) const noexcept
    {
        return areNumbersLow ? scaleLine + distance : scaleLine - distance;
    }
};

LinearLayout LayOut(const LinearGauge& gauge, const LinearRoom& room) noexcept;

// What the pointer paints of a gauge of that size: a stretch along, all the way across.
struct Stretch {
    double low;
    double high;
};
Stretch PointerStretch(const LinearGauge& gauge, double along, double scale) noexcept;

// Of a triangle: twice as far as its middle is from a flank, at its base.
double PointerBase(const LinearGauge& gauge, double scale) noexcept;

} // namespace quor
