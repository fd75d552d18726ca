#pragma once
// Closed lines through few points, as pointers have them.

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace quor {

struct Point {
    double x = 0;
    double y = 0;
};

// From corner to corner.
struct Extent {
    double left;
    double top;
    double right;
    double bottom;
};

Extent BoundsOf(std::span<const Point> points) noexcept; // of one point at least

// What of a polygon lies within the box. Parts that only its sides join stay joined, along the edge of the box.
std::vector<Point> Clipped(std::span<const Point> polygon, const Extent& box);

// A closed line through few points.
class Outline {
public:
    void Add(const Point& point) noexcept { m_points[m_count++] = point; }
    std::span<const Point> Points() const noexcept { return {m_points.data(), m_count}; }
    // As it is with so much more around it; sharp corners are cut off.
    Outline Grown(double margin) const noexcept;

private:
    std::array<Point, 24> m_points;
    std::size_t m_count = 0;
};

} // namespace quor
