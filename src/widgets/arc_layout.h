#pragma once
// Where the parts of an angular gauge lie: its arc, its pointer and the numbers under the ends. Lengths are in pixels
// times a scale, from the gauge's upper left corner; angles in degrees, counter-clockwise from the right.

#include "widgets/gauge_scale.h"
#include "widgets/outline.h"

#include <array>
#include <vector>

namespace quor {

class AngularGauge;

struct ArcLayout {
    Point center;
    double radius; // the outer edge of the band
    double inner;  // its inner edge
    double start;
    double range; // clockwise
    double scale;

    double AngleAt(double way) const noexcept { return start - range * way; }
    Point At(double angle, double distance) const noexcept;
    // Beyond the ends of the scale a pointer stands still, so that "at the limit" and "past it" differ.
    double PointerAngle(const ScalePlace& place) const noexcept;
};

// For a gauge of that width and height.
ArcLayout ArcOf(const AngularGauge& gauge, double width, double height, double scale) noexcept;

// A part of the ring about the arc's center.
struct RingPart {
    double from; // ways along the scale
    double to;
    double inner; // radii
    double outer;
    double offFrom; // what is taken off at the ends, parallel to them
    double offTo;
};

// Its edge, as a polygon; no points if nothing is left of it.
std::vector<Point> RingPolygon(const ArcLayout& arc, const RingPart& part);

// The gauge's pointer where it stands.
Outline PointerOutline(const AngularGauge& gauge, const ArcLayout& arc) noexcept;
// The half of it that is turned to the light.
Outline LitHalf(const AngularGauge& gauge, const ArcLayout& arc) noexcept;

// What lifts a pointer off the face: a halo around it, and shadows that fall down right.
struct PointerRelief {
    struct Shadow {
        double x;
        double y;
        double opacity; // 0 for none
    };
    double halo;
    std::array<Shadow, 2> shadows; // the farther one last
};
PointerRelief ReliefOf(const ArcLayout& arc) noexcept;

// All that the pointer paints.
Extent PointerBounds(const AngularGauge& gauge, const ArcLayout& arc) noexcept;

// A number: the left end of its first digit and the top of its digits.
struct HungNumber {
    double left;
    double top;
};
struct HungNumbers {
    HungNumber start;
    HungNumber end;
    bool doFit; // beside each other in the box
};

// Each under its own end, within the box; two that meet part.
HungNumbers HangNumbers(const ArcLayout& arc, double margin, double startWidth, double endWidth, double digitHeight,
                        const Extent& box) noexcept;

} // namespace quor
