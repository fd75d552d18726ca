#include "qt/painters/smooth_fills.h"

#include "qt/painters/polygons.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace quor {

namespace {

constexpr qint64 mostPixels = qint64{256} * 256; // beyond it, the empty ones cost more than is won
constexpr int whole = 255 << 8;                  // the cover of a pixel that is covered wholly

// Each channel of a pixel times a share of 0 to 255.
QRgb Share(QRgb pixel, std::uint32_t share)
{
    constexpr std::uint64_t channels = 0x00FF00FF00FF00FF;
    const std::uint64_t product = ((pixel | std::uint64_t{pixel} << 24) & channels) * share;
    const std::uint64_t shares = ((product + ((product >> 8) & channels) + 0x0080008000800080) >> 8) & channels;
    return static_cast<QRgb>(shares | shares >> 24);
}

} // namespace

SmoothFills::SmoothFills(QPainter& painter, FillRows& rows, const QRectF& bounds, const QRectF& area,
                         const QPoint& farthest)
    : m_painter(painter), m_rows(rows), m_shown(area.toAlignedRect()),
      m_place(bounds.intersected(m_shown.adjusted(-farthest.x(), -farthest.y(), 0, 0)).toAlignedRect())
{
    if (qint64{m_place.width()} * m_place.height() > mostPixels) {
        painter.setClipRect(area, Qt::IntersectClip);
    } else if (!m_place.isEmpty()) {
        m_picture = QImage(m_place.size(), QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        m_stride = m_place.width() + 2;
        const std::size_t cells = static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(m_place.height());
        m_rows.cover.resize(std::max(m_rows.cover.size(), cells));
        m_rows.shares.resize(m_rows.cover.size());
        m_rows.touched.resize(static_cast<std::size_t>(m_place.height()));
    }
}

void SmoothFills::Trace(std::span<const Point> polygon, const QPointF& shift)
{
    if (m_place.isEmpty() || polygon.empty()) {
        return;
    }
    if (m_picture.isNull()) {
        m_polygon = ReachablePart(polygon, shift);
        return;
    }
    std::fill(m_rows.touched.begin(), m_rows.touched.end(), FillRows::Touched{m_stride, 0});
    const QPointF offset = shift - m_place.topLeft();
    const auto moved = [&](const Point& point) { return Point{point.x + offset.x(), point.y + offset.y()}; };
    Point from = moved(polygon.back());
    for (const Point& point : polygon) {
        const Point to = moved(point);
        AddEdge(from, to);
        from = to;
    }
    TakeShares();
}

// Adds to each row that the edge crosses what it covers at its right.
void SmoothFills::AddEdge(Point from, Point to)
{
    const double direction = from.y < to.y ? 1 : -1;
    if (direction < 0) {
        std::swap(from, to);
    }
    const double top = std::max(from.y, 0.0);
    const double bottom = std::min<double>(to.y, m_place.height());
    if (!(top < bottom)) {
        return;
    }
    const double slope = (to.x - from.x) / (to.y - from.y);
    double x = from.x + (top - from.y) * slope;
    for (int row = static_cast<int>(top); row < bottom; ++row) {
        const double height = std::min<double>(row + 1, bottom) - std::max<double>(row, top);
        const double next = x + height * slope;
        AddStretch(row, std::min(x, next), std::max(x, next), direction * height * whole);
        x = next;
    }
}

// The part of an edge in one row, from left to right: a pixel is covered by what lies in it to the right of the edge.
void SmoothFills::AddStretch(int row, double fromX, double toX, double cover)
{
    const double left = std::clamp<double>(fromX, 0, m_place.width());
    const double right = std::clamp<double>(toX, 0, m_place.width());
    const int first = static_cast<int>(left);
    const int end = static_cast<int>(right);
    const int last = end > first && end == right ? end - 1 : end;
    FillRows::Touched& touched = m_rows.touched[static_cast<std::size_t>(row)];
    touched.first = std::min(touched.first, first);
    touched.end = std::max(touched.end, last + 2);
    int* cells = m_rows.cover.data() + static_cast<std::ptrdiff_t>(row) * m_stride;
    const int all = static_cast<int>(cover);
    if (first == last) {
        const int beside = static_cast<int>(cover * ((left + right) / 2 - first)); // the next pixel's part of it
        cells[first] += all - beside;
        cells[first + 1] += beside;
        return;
    }
    const double perPixel = cover / (right - left);
    int before = 0; // covered of the pixel to the left
    double enters = left;
    for (int pixel = first; pixel <= last; ++pixel) {
        const double leaves = pixel == last ? right : pixel + 1;
        const double within = (leaves - enters) * (pixel + 1 - (enters + leaves) / 2);
        const int covered = static_cast<int>(perPixel * (enters - left + within));
        cells[pixel] += covered - before;
        before = covered;
        enters = leaves;
    }
    cells[last + 1] += all - before;
}

// Sums up what the edges have left.
void SmoothFills::TakeShares()
{
    for (int row = 0; row < m_place.height(); ++row) {
        const auto [first, end] = m_rows.touched[static_cast<std::size_t>(row)];
        const std::ptrdiff_t start = static_cast<std::ptrdiff_t>(row) * m_stride;
        int* cells = m_rows.cover.data() + start;
        std::uint8_t* shares = m_rows.shares.data() + start;
        int cover = 0;
        for (int x = first; x < end; ++x) {
            cover += std::exchange(cells[x], 0);
            shares[x] = static_cast<std::uint8_t>((std::min(std::abs(cover), whole) + 128) >> 8);
        }
    }
}

void SmoothFills::Fill(const QColor& color, const QPoint& offset)
{
    if (m_picture.isNull()) {
        FillReachable(m_painter, m_polygon.translated(offset), color);
        return;
    }
    const QRgb full = qPremultiply(color.rgba());
    for (int row = offset.y(); row < m_place.height(); ++row) {
        const int source = row - offset.y();
        const auto [touchedFirst, touchedEnd] = m_rows.touched[static_cast<std::size_t>(source)];
        const std::uint8_t* shares = m_rows.shares.data() + static_cast<std::ptrdiff_t>(source) * m_stride;
        auto* pixels = reinterpret_cast<QRgb*>(m_picture.scanLine(row)) + offset.x();
        const int end = std::min(touchedEnd, m_place.width() - offset.x());
        for (int x = touchedFirst; x < end; ++x) {
            if (shares[x] != 0) {
                const QRgb part = Share(full, shares[x]);
                pixels[x] = part + Share(pixels[x], 255U - (part >> 24));
            }
        }
    }
}

void SmoothFills::Draw()
{
    if (!m_picture.isNull()) {
        const QRect shown = m_place & m_shown;
        m_painter.drawImage(shown.topLeft(), m_picture, shown.translated(-m_place.topLeft()));
    }
}

} // namespace quor
