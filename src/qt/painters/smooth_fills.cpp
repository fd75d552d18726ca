#include "qt/painters/smooth_fills.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace quor {

namespace {

constexpr qint64 mostPixels = 256 * 256; // beyond it, the empty ones cost more than is won

constexpr int whole = 1 << 16; // the cover of a pixel that is covered wholly

// Each channel of a pixel times a share of 0 to 255.
QRgb Share(QRgb pixel, std::uint32_t share)
{
    constexpr std::uint64_t channels = 0x00FF00FF00FF00FF;
    const std::uint64_t product = ((pixel | std::uint64_t{pixel} << 24) & channels) * share;
    const std::uint64_t shares = ((product + ((product >> 8) & channels) + 0x0080008000800080) >> 8) & channels;
    return static_cast<QRgb>(shares | shares >> 24);
}

// The first place from there on that isn't zero, or the end. Rings are empty in the middle, so it takes eight bytes at
// a time.
template <class Value> int AfterZeros(const Value* values, int from, int end)
{
    constexpr int step = sizeof(std::uint64_t) / sizeof(Value);
    for (std::uint64_t several = 0; from + step <= end; from += step) {
        std::memcpy(&several, values + from, sizeof several);
        if (several != 0) {
            break;
        }
    }
    while (from < end && values[from] == 0) {
        ++from;
    }
    return from;
}

} // namespace

SmoothFills::SmoothFills(QPainter& painter, const QRectF& bounds, const QRectF& area)
    : m_painter(painter), m_place(bounds.intersected(area).toAlignedRect().intersected(area.toAlignedRect()))
{
    if (qint64{m_place.width()} * m_place.height() > mostPixels) {
        painter.setClipRect(area, Qt::IntersectClip);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
    } else if (!m_place.isEmpty()) {
        m_picture = QImage(m_place.size(), QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        m_stride = m_place.width() + 2;
        m_cover.resize(static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(m_place.height()));
        m_shares.resize(m_cover.size());
        m_touched.resize(static_cast<std::size_t>(m_place.height()));
    }
}

void SmoothFills::Trace(std::span<const Point> polygon, const QPointF& shift)
{
    if (m_place.isEmpty() || polygon.empty()) {
        return;
    }
    if (m_picture.isNull()) {
        m_polygon.clear();
        for (const Point& point : polygon) {
            m_polygon.append(shift + QPointF(point.x, point.y));
        }
        return;
    }
    std::fill(m_touched.begin(), m_touched.end(), Touched{m_stride, 0});
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
    Touched& touched = m_touched[static_cast<std::size_t>(row)];
    touched.first = std::min(touched.first, first);
    touched.end = std::max(touched.end, last + 2);
    int* cells = m_cover.data() + static_cast<std::ptrdiff_t>(row) * m_stride;
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
        const Touched& touched = m_touched[static_cast<std::size_t>(row)];
        const std::ptrdiff_t start = static_cast<std::ptrdiff_t>(row) * m_stride;
        int* cells = m_cover.data() + start;
        std::uint8_t* shares = m_shares.data() + start;
        std::fill(shares + std::min(touched.first, touched.end), shares + touched.end, std::uint8_t{0});
        int cover = 0;
        std::uint8_t share = 0;
        for (int x = touched.first; x < touched.end; ++x) {
            if (cells[x] != 0) {
                cover += std::exchange(cells[x], 0);
                const auto covered = static_cast<std::uint32_t>(std::min(std::abs(cover), whole));
                share = static_cast<std::uint8_t>((covered * 255 + whole / 2) / whole);
            } else if (share == 0) {
                x = AfterZeros(cells, x, touched.end) - 1;
                continue;
            }
            shares[x] = share;
        }
    }
}

void SmoothFills::Fill(const QColor& color, const QPoint& offset)
{
    if (m_picture.isNull()) {
        m_painter.setBrush(color);
        m_painter.drawPolygon(m_polygon.translated(offset), Qt::WindingFill);
        return;
    }
    const QRgb full = qPremultiply(color.rgba());
    const int firstRow = std::max(0, offset.y());
    const int endRow = std::min(m_place.height(), m_place.height() + offset.y());
    for (int row = firstRow; row < endRow; ++row) {
        const int source = row - offset.y();
        const Touched& touched = m_touched[static_cast<std::size_t>(source)];
        const std::uint8_t* shares = m_shares.data() + static_cast<std::ptrdiff_t>(source) * m_stride;
        auto* pixels = reinterpret_cast<QRgb*>(m_picture.scanLine(row)) + offset.x();
        const int first = std::max(touched.first, -offset.x());
        const int end = std::min(touched.end, m_place.width() - std::max(0, offset.x()));
        for (int x = first; x < end; ++x) {
            if (shares[x] == 0) {
                x = AfterZeros(shares, x, end) - 1;
                continue;
            }
            const QRgb part = Share(full, shares[x]);
            pixels[x] = part + Share(pixels[x], 255U - (part >> 24));
        }
    }
}

void SmoothFills::Draw()
{
    if (!m_picture.isNull()) {
        m_painter.drawImage(m_place.topLeft(), m_picture);
    }
}

} // namespace quor
