#include "qt/painters/smooth_fills.h"

#include "qt/drawing/device_space.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace quor {

namespace {

constexpr qint64 mostPixels = qint64{256} * 256; // beyond it, the empty ones cost more than is won

constexpr int narrow = 16;      // pixels of a row that are not worth looking for empty ones
constexpr int whole = 255 << 8; // the cover of a pixel that is covered wholly

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

QPolygonF ReachablePart(std::span<const Point> polygon, const QPointF& shift)
{
    const QRectF box = reachable.translated(-shift);
    QPolygonF part;
    for (const Point& point : Clipped(polygon, {box.left(), box.top(), box.right(), box.bottom()})) {
        part.append(shift + QPointF(point.x, point.y));
    }
    return part;
}

// Many small polygons share the memory of few.
SmoothFills::Scratch& SmoothFills::ScratchOfThread()
{
    static thread_local Scratch scratch;
    return scratch;
}

SmoothFills::SmoothFills(QPainter& painter, const QRectF& bounds, const QRectF& area)
    : m_painter(painter), m_scratch(ScratchOfThread()),
      m_place(bounds.intersected(area).toAlignedRect().intersected(area.toAlignedRect()))
{
    if (qint64{m_place.width()} * m_place.height() > mostPixels) {
        painter.setClipRect(area, Qt::IntersectClip);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
    } else if (!m_place.isEmpty()) {
        m_picture = QImage(m_place.size(), QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        m_pixels = reinterpret_cast<QRgb*>(m_picture.bits());
        m_stride = m_place.width() + 2;
        const std::size_t cells = static_cast<std::size_t>(m_stride) * static_cast<std::size_t>(m_place.height());
        if (m_scratch.cover.size() < cells) {
            m_scratch.cover.resize(cells);
            m_scratch.shares.resize(cells);
        }
        m_scratch.touched.resize(static_cast<std::size_t>(m_place.height()));
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
    std::fill(m_scratch.touched.begin(), m_scratch.touched.end(), Touched{m_stride, 0});
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
    Touched& touched = m_scratch.touched[static_cast<std::size_t>(row)];
    touched.first = std::min(touched.first, first);
    touched.end = std::max(touched.end, last + 2);
    int* cells = m_scratch.cover.data() + static_cast<std::ptrdiff_t>(row) * m_stride;
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
        const Touched& touched = m_scratch.touched[static_cast<std::size_t>(row)];
        const std::ptrdiff_t start = static_cast<std::ptrdiff_t>(row) * m_stride;
        int* cells = m_scratch.cover.data() + start;
        std::uint8_t* shares = m_scratch.shares.data() + start;
        const bool isWide = touched.end - touched.first > narrow;
        int cover = 0;
        std::uint8_t share = 0;
        for (int x = touched.first; x < touched.end; ++x) {
            if (cells[x] != 0) {
                cover += std::exchange(cells[x], 0);
                const auto covered = static_cast<std::uint32_t>(std::min(std::abs(cover), whole));
                share = static_cast<std::uint8_t>((covered + 128) >> 8);
            } else if (isWide && share == 0) {
                const int next = AfterZeros(cells, x, touched.end);
                std::fill(shares + x, shares + next, std::uint8_t{0});
                x = next - 1;
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
        const Touched& touched = m_scratch.touched[static_cast<std::size_t>(source)];
        const std::uint8_t* shares = m_scratch.shares.data() + static_cast<std::ptrdiff_t>(source) * m_stride;
        QRgb* pixels = m_pixels + static_cast<std::ptrdiff_t>(row) * m_place.width() + offset.x();
        const int first = std::max(touched.first, -offset.x());
        const int end = std::min(touched.end, m_place.width() - std::max(0, offset.x()));
        const bool isWide = end - first > narrow;
        for (int x = first; x < end; ++x) {
            if (isWide && shares[x] == 0) {
                x = AfterZeros(shares, x, end) - 1;
                continue;
            }
            const QRgb part = Share(full, shares[x]);
            pixels[x] = m_isBlank ? part : part + Share(pixels[x], 255U - (part >> 24));
        }
    }
    m_isBlank = false;
}

void SmoothFills::Draw()
{
    if (!m_picture.isNull()) {
        m_painter.drawImage(m_place.topLeft(), m_picture);
    }
}

} // namespace quor
