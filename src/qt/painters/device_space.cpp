#include "qt/painters/device_space.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace quor {

DeviceSpace::DeviceSpace(QPainter& painter, const QRectF& area) : m_painter(painter), m_size(area.size())
{
    painter.save();
    const QTransform toDevice = painter.deviceTransform();
    const QTransform& toWorld = painter.worldTransform();
    const QRectF exact = toDevice.mapRect(area);
    m_area.setCoords(std::round(exact.left()), std::round(exact.top()), std::round(exact.right()),
                     std::round(exact.bottom()));
    m_scale = toDevice.m11();
    painter.setWorldTransform(toDevice.inverted() * toWorld);
}

qreal DeviceSpace::Line(qreal length) const
{
    return std::max<qreal>(1, Whole(length));
}

qreal DeviceSpace::Whole(qreal length) const
{
    return std::round(length * m_scale);
}

} // namespace quor
