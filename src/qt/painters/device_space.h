#pragma once
// Lets a painter work in whole device pixels, whatever the scale factor, for as long as it lives.

#include <QPainter>
#include <QRectF>

namespace quor {

class DeviceSpace {
public:
    // The area is in the painter's coordinates before, in device pixels after.
    DeviceSpace(QPainter& painter, const QRectF& area);
    ~DeviceSpace() { m_painter.restore(); }
    DeviceSpace(const DeviceSpace&) = delete;
    DeviceSpace& operator=(const DeviceSpace&) = delete;

    // With the edges rounded to whole pixels.
    const QRectF& Area() const noexcept { return m_area; }

    // Device pixels for a length, a whole number and at least 1.
    qreal Line(qreal length) const;

    // Device pixels of one device-independent pixel.
    qreal Scale() const noexcept { return m_scale; }
    // Device pixels for a distance: a whole number.
    qreal Whole(qreal length) const;

private:
    QPainter& m_painter;
    QRectF m_area;
    qreal m_scale;
};

} // namespace quor
