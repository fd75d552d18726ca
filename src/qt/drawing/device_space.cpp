#include "qt/drawing/device_space.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace quor {

QRectF OnWholePixels(const QRectF& area)
{
    return {QPointF(std::round(area.left()), std::round(area.top())),
            QPointF(std::round(area.right()), std::round(area.bottom()))};
}

DeviceSpace::DeviceSpace(QPainter& painter, const QRectF& area) : m_painter(painter), m_size(area.size())
{
    painter.save();
    const QTransform toDevice = painter.deviceTransform();
    const QTransform& toWorld = painter.worldTransform();
    m_area = OnWholePixels(toDevice.mapRect(area));
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
