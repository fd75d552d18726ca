#pragma once
// The parts of instruments that stand still, kept as pictures until a setting changes. What is lost is drawn again, so
// the bound on their memory costs time only.

#include "qt/drawing/device_space.h"

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QPainter>

namespace quor {

class Widget;

// All that the look of a widget of one kind depends on, but for its place and what moves its pointer.
QByteArray FaceKey(const Widget& widget, const QSize& size, qreal scale);

// `Still` is what else is worked out with the face and kept; its `Bytes()` count too.
template <class Kind, class Still> class FaceCache {
public:
    // Draws the face in the area, which is in device-independent pixels.
    using Draw = Still (*)(QPainter& painter, const Kind& widget, const QRectF& area);

    explicit FaceCache(Draw draw) : m_draw(draw), m_faces(usualBytes) {}

    // Paints the face in the space's area and nowhere else.
    Still Paint(QPainter& painter, const DeviceSpace& space, const Kind& widget, bool isOpaque);

    qsizetype Bytes() const { return m_faces.totalCost(); }
    void SetMostBytes(qsizetype bytes) { m_faces.setMaxCost(bytes); }
    void Clear() { m_faces.clear(); }

private:
    static constexpr qsizetype usualBytes = qsizetype{32} << 20; // a screen of the largest kind

    struct Face {
        QImage picture;
        Still still;
    };
    Face Drawn(const Kind& widget, const QSize& size, qreal scale, bool isOpaque) const;
    Still PaintAfresh(QPainter& painter, const DeviceSpace& space, const Kind& widget) const;

    Draw m_draw;
    QCache<QByteArray, Face> m_faces;
};

template <class Kind, class Still>
Still FaceCache<Kind, Still>::Paint(QPainter& painter, const DeviceSpace& space, const Kind& widget, bool isOpaque)
{
    constexpr qreal bytesPerPixel = 4;
    constexpr qreal leastFaces = 4;
    const QRectF& area = space.Area();
    if (leastFaces * bytesPerPixel * area.width() * area.height() > static_cast<qreal>(m_faces.maxCost())) {
        return PaintAfresh(painter, space, widget);
    }
    const QSize size = area.size().toSize();
    const QByteArray key = FaceKey(widget, size, space.Scale());
    if (const Face* kept = m_faces.object(key)) {
        painter.drawImage(area.topLeft(), kept->picture);
        return kept->still;
    }
    const Face face = Drawn(widget, size, space.Scale(), isOpaque);
    painter.drawImage(area.topLeft(), face.picture);
    m_faces.insert(key, new Face(face), face.picture.sizeInBytes() + face.still.Bytes());
    return face.still;
}

template <class Kind, class Still>
auto FaceCache<Kind, Still>::Drawn(const Kind& widget, const QSize& size, qreal scale, bool isOpaque) const -> Face
{
    QImage picture(size, isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (!isOpaque) {
        picture.fill(Qt::transparent);
    }
    QPainter painter(&picture);
    painter.scale(scale, scale); // the picture's own ratio can't be below 1
    Still still = m_draw(painter, widget, QRectF(QPointF(0, 0), QSizeF(size) / scale));
    painter.end();
    return {std::move(picture), std::move(still)};
}

template <class Kind, class Still>
Still FaceCache<Kind, Still>::PaintAfresh(QPainter& painter, const DeviceSpace& space, const Kind& widget) const
{
    const QRectF& area = space.Area();
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.scale(space.Scale(), space.Scale());
    Still still = m_draw(painter, widget, QRectF(area.topLeft() / space.Scale(), area.size() / space.Scale()));
    painter.restore();
    return still;
}

} // namespace quor
