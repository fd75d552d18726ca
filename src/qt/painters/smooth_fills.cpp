#include "qt/painters/smooth_fills.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace quor {

namespace {

constexpr qint64 mostPixels = 256 * 256; // beyond it, the empty ones cost more than is won

// Each channel of a pixel times a share of 0 to 255.
QRgb Share(QRgb pixel, std::uint32_t share)
{
    constexpr std::uint32_t pairs = 0x00FF00FF;
    const auto scaled = [&](std::uint32_t two) {
        const std::uint32_t product = two * share;
        return ((product + ((product >> 8) & pairs) + 0x00800080) >> 8) & pairs;
    };
    return scaled(pixel & pairs) | scaled((pixel >> 8) & pairs) << 8;
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
        m_touched.assign(static_cast<std::size_t>(m_place.height()), {std::numeric_limits<int>::max(), 0});
    }
}

void SmoothFills::Fill(std::span<const Point> polygon, const QPointF& shift, const QColor& color)
{
    if (m_place.isEmpty() || polygon.empty()) {
        return;
    }
    if (m_picture.isNull()) {
        FillByPainter(polygon, shift, color);
        return;
    }
    const QPointF offset = shift - m_place.topLeft();
    const auto moved = [&](const Point& point) { return Point{point.x + offset.x(), point.y + offset.y()}; };
    Point from = moved(polygon.back());
    for (const Point& point : polygon) {
        const Point to = moved(point);
        AddEdge(from, to);
        from = to;
    }
    Blend(color);
}

void SmoothFills::FillByPainter(std::span<const Point> polygon, const QPointF& shift, const QColor& color)
{
    QPolygonF points;
    points.reserve(static_cast<qsizetype>(polygon.size()));
    for (const Point& point : polygon) {
        points.append(shift + QPointF(point.x, point.y));
    }
    m_painter.setBrush(color);
    m_painter.drawPolygon(points, Qt::WindingFill);
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
        AddStretch(row, std::min(x, next), std::max(x, next), direction * height);
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
    float* cells = m_cover.data() + static_cast<std::ptrdiff_t>(row) * m_stride;
    if (first == last) {
        const double beside = cover * ((left + right) / 2 - first); // its share of the next pixel's difference
        cells[first] += static_cast<float>(cover - beside);
        cells[first + 1] += static_cast<float>(beside);
        return;
    }
    const double perPixel = cover / (right - left);
    double before = 0; // covered of the pixel to the left
    double enters = left;
    for (int pixel = first; pixel <= last; ++pixel) {
        const double leaves = pixel == last ? right : pixel + 1;
        const double within = (leaves - enters) * (pixel + 1 - (enters + leaves) / 2);
        const double covered = perPixel * (enters - left + within);
        cells[pixel] += static_cast<float>(covered - before);
        before = covered;
        enters = leaves;
    }
    cells[last + 1] += static_cast<float>(cover - before);
}

void SmoothFills::Blend(const QColor& color)
{
    const QRgb full = qPremultiply(color.rgba());
    const bool isOpaque = qAlpha(full) == 255;
    for (int row = 0; row < m_place.height(); ++row) {
        Touched& touched = m_touched[static_cast<std::size_t>(row)];
        const int width = std::min(touched.end, m_place.width());
        float* cells = m_cover.data() + static_cast<std::ptrdiff_t>(row) * m_stride;
        auto* pixels = reinterpret_cast<QRgb*>(m_picture.scanLine(row));
        float cover = 0;
        for (int x = touched.first; x < width; ++x) {
            cover += cells[x];
            const auto share = static_cast<std::uint32_t>(std::min(std::abs(cover), 1.0F) * 255 + 0.5F);
            if (share == 255 && isOpaque) {
                pixels[x] = full;
            } else if (share > 0) {
                const QRgb source = Share(full, share);
                pixels[x] = pixels[x] == 0
                                ? source
                                : source + Share(pixels[x], 255U - static_cast<std::uint32_t>(qAlpha(source)));
            }
        }
        if (touched.first < touched.end) {
            std::fill(cells + touched.first, cells + touched.end, 0.0F);
        }
        touched = {std::numeric_limits<int>::max(), 0};
    }
}

void SmoothFills::Draw()
{
    if (!m_picture.isNull()) {
        m_painter.drawImage(m_place.topLeft(), m_picture);
    }
}

} // namespace quor
