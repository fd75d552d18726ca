#pragma once
// Lets a painter work in whole device pixels, whatever the scale factor, for as long as it lives.

#include <QPainter>
#include <QRectF>

namespace quor {

// In device pixels, beyond all pictures: the toolkit takes seconds for curves farther away, so they are cut there.
inline constexpr QRectF reachable(-2'000, -2'000, 34'000, 34'000);

// With the edges rounded.
QRectF OnWholePixels(const QRectF& area);

class DeviceSpace {
public:
    // The area is in the painter's coordinates before, in device pixels after.
    DeviceSpace(QPainter& painter, const QRectF& area);
    ~DeviceSpace() { m_painter.restore(); }
    DeviceSpace(const DeviceSpace&) = delete;
    DeviceSpace& operator=(const DeviceSpace&) = delete;

    // On whole pixels.
    const QRectF& Area() const noexcept { return m_area; }
    // The area's, in device-independent pixels. What fits and where lines break is decided by it, at every scale alike.
    const QSizeF& Size() const noexcept { return m_size; }

    // Device pixels for a length, a whole number and at least 1.
    qreal Line(qreal length) const;

    // Device pixels of one device-independent pixel.
    qreal Scale() const noexcept { return m_scale; }
    // Device pixels for a distance: a whole number.
    qreal Whole(qreal length) const;

private:
    QPainter& m_painter;
    QSizeF m_size;
    QRectF m_area;
    qreal m_scale;
};

} // namespace quor
