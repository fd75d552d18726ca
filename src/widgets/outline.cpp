#include "widgets/outline.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr std::size_t mostCorners = 8; // that can grow

Point Moved(const Point& point, double x, double y, double by) noexcept
{
    return {point.x + x * by, point.y + y * by};
}

// Square to the way from one point to the next, to the outside of a line that turns to the left on the screen.
Point Outwards(const Point& from, const Point& to) noexcept
{
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double length = std::hypot(x, y);
    return length == 0 ? Point{} : Point{-y / length, x / length};
}

bool TurnsRight(std::span<const Point> points) noexcept
{
    double twiceArea = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Point& next = points[(i + 1) % points.size()];
        twiceArea += points[i].x * next.y - next.x * points[i].y;
    }
    return twiceArea > 0;
}

// What lies at the inner side of a line: where the distance isn't less than 0.
template <class Distance> std::vector<Point> Within(std::span<const Point> polygon, Distance distance)
{
    std::vector<Point> inside;
    Point from = polygon.empty() ? Point{} : polygon.back();
    for (const Point& to : polygon) {
        const double before = distance(from);
        const double after = distance(to);
        if ((before < 0) != (after < 0)) {
            const double way = before / (before - after);
            inside.push_back({from.x + way * (to.x - from.x), from.y + way * (to.y - from.y)});
        }
        if (after >= 0) {
            inside.push_back(to);
        }
        from = to;
    }
    return inside;
}

} // namespace

std::vector<Point> Clipped(std::span<const Point> polygon, const Extent& box)
{
    std::vector<Point> part = Within(polygon, [&](const Point& point) { return point.x - box.left; });
    part = Within(part, [&](const Point& point) { return box.right - point.x; });
    part = Within(part, [&](const Point& point) { return point.y - box.top; });
    return Within(part, [&](const Point& point) { return box.bottom - point.y; });
}

Extent BoundsOf(std::span<const Point> points) noexcept
{
    Extent bounds{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& point : points) {
        bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y), std::max(bounds.right, point.x),
                  std::max(bounds.bottom, point.y)};
    }
    return bounds;
}

Outline Outline::Grown(double margin) const noexcept
{
    constexpr double sharpest = 0.5; // 1 plus the cosine between the two sides' outward directions
    const double around = TurnsRight(Points()) ? -margin : margin;
    Outline grown;
    const std::size_t count = std::min(m_count, mostCorners);
    for (std::size_t i = 0; i < count; ++i) {
        const Point& corner = m_points[i];
        const Point before = Outwards(m_points[(i + count - 1) % count], corner);
        const Point after = Outwards(corner, m_points[(i + 1) % count]);
        const double middleX = before.x + after.x;
        const double middleY = before.y + after.y;
        const double sharpness = 1 + before.x * after.x + before.y * after.y;
        if (sharpness > sharpest) {
            grown.Add(Moved(corner, middleX, middleY, around / sharpness));
        } else {
            grown.Add(Moved(corner, before.x, before.y, around));
            grown.Add(Moved(corner, after.x, after.y, around));
        }
    }
    return grown;
}

} // namespace quor
