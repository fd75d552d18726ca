#include "widgets/arc_layout.h"

#include "widgets/angular_gauge.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace quor {

namespace {

constexpr double parkedBeyond = 4; // degrees
constexpr double largeRadius = 56; // from here the pointer stands higher above the face
constexpr double partedBy = 6;
constexpr double mostPixels = 10'000;

double Radians(double degrees) noexcept
{
    return degrees * std::numbers::pi / 180;
}

// A pointer as it is drawn: along it from the hub, and across.
struct PointerFrame {
    Point origin;
    double cosine;
    double sine;

    Point At(double along, double across) const noexcept
    {
        return {origin.x + along * cosine + across * sine, origin.y - along * sine + across * cosine};
    }
};

PointerFrame FrameOf(const AngularGauge& gauge, const ArcLayout& arc) noexcept
{
    const double angle = Radians(arc.PointerAngle(PointerPlace(gauge)));
    return {arc.center, std::cos(angle), std::sin(angle)};
}

// The corners at one side of a pointer, from its tail to its tip.
struct HalfPointer {
    struct Corner {
        double along;
        double across;
    };
    std::array<Corner, 4> corners;
    std::size_t count;
};

// A scale that leaves no room between its ends to park in: there the pointer draws back instead.
bool IsClosed(const ArcLayout& arc) noexcept
{
    return std::abs(arc.range) > 360 - 2 * parkedBeyond;
}

HalfPointer HalfOf(const AngularGauge& gauge, const ArcLayout& arc) noexcept
{
    constexpr double drawnBack = 0.6;
    const double scale = arc.scale;
    const double share = IsClosed(arc) && PointerPlace(gauge).beyond != 0 ? drawnBack : 1;
    const double size = std::clamp<double>(gauge.PointerSize(), 0, mostPixels) * scale;
    const double length = std::clamp<double>(gauge.ArcRadius() - gauge.PointerMargin(), 0, mostPixels) * scale * share;
    const double tail = std::min(0.2 * length, 2.2 * size);
    switch (gauge.PointerStyleCode()) {
    case pointer_styles::arrow: {
        const double tip = std::min(length, std::max(scale, 0.18 * size)) / 2;
        return {{{{-std::min(0.18 * length, 1.5 * size), 0.22 * size}, {0, size / 2}, {length, tip}, {}}}, 3};
    }
    case pointer_styles::line: {
        const double half = std::max(2 * scale, 0.5 * size) / 2;
        return {{{{-tail, half}, {length, half}, {}, {}}}, 2};
    }
    case pointer_styles::triangle:
        return {{{{length - 2.6 * size, 1.1 * size}, {length, 0}, {}, {}}}, 2};
    default: {
        const double half = std::max(1.5 * scale, 0.36 * size) / 2;
        const double head = std::min(0.5 * length, 2.6 * size);
        return {{{{-tail, half}, {length - 0.82 * head, half}, {length - head, 0.95 * size}, {length, 0}}}, 4};
    }
    }
}

} // namespace

Point ArcLayout::At(double angle, double distance) const noexcept
{
    return {center.x + distance * std::cos(Radians(angle)), center.y - distance * std::sin(Radians(angle))};
}

double ArcLayout::PointerAngle(const ScalePlace& place) const noexcept
{
    return AngleAt(place.way) - (range < 0 ? -parkedBeyond : parkedBeyond) * place.beyond;
}

ArcLayout ArcOf(const AngularGauge& gauge, double width, double height, double scale) noexcept
{
    ArcLayout arc;
    arc.center = {width / 2 + gauge.OffsetX() * scale, height / 2 + gauge.OffsetY() * scale};
    arc.radius = std::clamp<double>(gauge.ArcRadius(), 0, mostPixels) * scale;
    arc.inner = std::max(0.0, arc.radius - std::max<double>(gauge.SectionBandWidth(), 0) * scale);
    arc.start = gauge.ArcStartDegrees();
    arc.range = std::clamp<double>(gauge.ArcRangeDegrees(), -360, 360);
    arc.scale = scale;
    return arc;
}

std::vector<Point> RingPolygon(const ArcLayout& arc, const RingPart& part)
{
    const double turn = arc.range < 0 ? -1 : 1;
    const auto degreesOff = [&](double length, double radius) {
        return radius <= 0 ? 0 : turn * std::asin(std::min(1.0, length / radius)) * 180 / std::numbers::pi;
    };
    std::vector<Point> points;
    const auto addArc = [&](double radius, double first, double last) {
        // So many that a straight line between two lies within a twentieth of a pixel of the arc.
        const double step = radius <= 1 ? 30 : std::acos(1 - 0.05 / radius) * 360 / std::numbers::pi;
        const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(last - first) / step)));
        const double turned = Radians((last - first) / steps);
        const double cosine = std::cos(turned);
        const double sine = std::sin(turned);
        Point place = {arc.At(first, radius).x - arc.center.x, arc.At(first, radius).y - arc.center.y};
        for (int i = 0; i <= steps; ++i) {
            points.push_back({arc.center.x + place.x, arc.center.y + place.y});
            place = {place.x * cosine + place.y * sine, place.y * cosine - place.x * sine};
        }
    };
    const double inner = std::max(0.0, part.inner);
    const auto from = [&](double radius) { return arc.AngleAt(part.from) - degreesOff(part.offFrom, radius); };
    const auto to = [&](double radius) { return arc.AngleAt(part.to) + degreesOff(part.offTo, radius); };
    if (part.outer <= inner || (from(part.outer) - to(part.outer)) * turn <= 0) {
        return points;
    }
    addArc(part.outer, from(part.outer), to(part.outer));
    if ((from(inner) - to(inner)) * turn > 0) {
        addArc(inner, to(inner), from(inner));
    } else {
        points.push_back(arc.At((to(inner) + from(inner)) / 2, inner));
    }
    return points;
}

Outline PointerOutline(const AngularGauge& gauge, const ArcLayout& arc) noexcept
{
    const PointerFrame frame = FrameOf(gauge, arc);
    const HalfPointer half = HalfOf(gauge, arc);
    Outline outline;
    for (std::size_t i = 0; i < half.count; ++i) {
        outline.Add(frame.At(half.corners[i].along, half.corners[i].across));
    }
    for (std::size_t i = half.count; i-- > 0;) {
        if (half.corners[i].across > 0) { // the tip is but one corner
            outline.Add(frame.At(half.corners[i].along, -half.corners[i].across));
        }
    }
    return outline;
}

Outline LitHalf(const AngularGauge& gauge, const ArcLayout& arc) noexcept
{
    const PointerFrame frame = FrameOf(gauge, arc);
    const HalfPointer half = HalfOf(gauge, arc);
    // Across by 1 is (sine, cosine) in the picture; the light comes from the upper left.
    const double side = frame.sine + frame.cosine < 0 ? 1 : -1;
    Outline outline;
    outline.Add(frame.At(half.corners[0].along, 0));
    for (std::size_t i = 0; i < half.count; ++i) {
        outline.Add(frame.At(half.corners[i].along, side * half.corners[i].across));
    }
    outline.Add(frame.At(half.corners[half.count - 1].along, 0));
    return outline;
}

PointerRelief ReliefOf(const ArcLayout& arc) noexcept
{
    const double unit = arc.scale;
    if (arc.radius < largeRadius * unit) {
        return {0.75 * unit, {{{unit, unit, 0.22}, {0, 0, 0}}}};
    }
    return {unit, {{{1.2 * unit, 1.6 * unit, 0.14}, {2 * unit, 2.6 * unit, 0.09}}}};
}

Extent PointerBounds(const AngularGauge& gauge, const ArcLayout& arc) noexcept
{
    const PointerFrame frame = FrameOf(gauge, arc);
    const HalfPointer half = HalfOf(gauge, arc);
    constexpr double far = std::numeric_limits<double>::infinity();
    Extent body{far, far, -far, -far};
    for (std::size_t i = 0; i < half.count; ++i) { // both corners of a pair at once
        const auto& corner = half.corners[i];
        const Point middle = frame.At(corner.along, 0);
        const double aside = std::abs(corner.across * frame.sine);
        const double upward = std::abs(corner.across * frame.cosine);
        body = {std::min(body.left, middle.x - aside), std::min(body.top, middle.y - upward),
                std::max(body.right, middle.x + aside), std::max(body.bottom, middle.y + upward)};
    }
    const PointerRelief relief = ReliefOf(arc);
    const double halo = 2 * relief.halo; // at the corners
    const auto& shadow = relief.shadows.back();
    return {body.left - halo, body.top - halo, body.right + std::max(halo, shadow.x),
            body.bottom + std::max(halo, shadow.y)};
}

HungNumbers HangNumbers(const ArcLayout& arc, double margin, double startWidth, double endWidth, double digitHeight,
                        const Extent& box) noexcept
{
    const auto hang = [&](double way, double width) {
        const double angle = arc.AngleAt(way);
        const double lowest = std::max(arc.At(angle, arc.radius).y, arc.At(angle, arc.inner).y);
        const double top =
            KeptWithin(lowest + (margin + 1) * arc.scale + digitHeight / 2, digitHeight, box.top, box.bottom);
        return HungNumber{KeptWithin(arc.At(angle, (arc.radius + arc.inner) / 2).x, width, box.left, box.right),
                          std::round(top)};
    };
    HungNumbers numbers{hang(0, startWidth), hang(1, endWidth), true};
    HungNumber& start = numbers.start;
    HungNumber& end = numbers.end;
    const bool isStartLeft = start.left + startWidth / 2 <= end.left + endWidth / 2 + 0.5;
    HungNumber& left = isStartLeft ? start : end;
    HungNumber& right = isStartLeft ? end : start;
    const double leftWidth = isStartLeft ? startWidth : endWidth;
    const double rightWidth = isStartLeft ? endWidth : startWidth;
    const double gap = partedBy * arc.scale;
    const double shortBy = left.left + leftWidth + gap - right.left;
    if (shortBy > 0 && std::abs(left.top - right.top) < digitHeight + gap / 2) {
        const double width = leftWidth + gap + rightWidth;
        left.left = KeptWithin((left.left + right.left + rightWidth) / 2, width, box.left, box.right);
        right.left = left.left + leftWidth + gap;
        numbers.doFit = right.left + rightWidth <= box.right;
    }
    const double widest = std::max(startWidth, endWidth);
    numbers.doFit = numbers.doFit && widest <= box.right - box.left && digitHeight <= box.bottom - box.top;
    left.left = std::round(left.left);
    right.left = std::round(right.left);
    return numbers;
}

} // namespace quor
