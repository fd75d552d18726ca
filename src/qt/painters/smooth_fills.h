#pragma once
// Fills polygons with smooth edges, one over the other, and draws them as one picture. The toolkit takes many times as
// long for polygons of a few hundred pixels, and pointers move all the time.

#include "qt/painters/kept_pictures.h"
#include "widgets/outline.h"

#include <QColor>
#include <QImage>
#include <QPolygonF>

#include <span>

class QPainter;

namespace quor {

class SmoothFills {
public:
    // For polygons within the bounds, of which only what lies in the area shows. Both and all points are in the
    // painter's coordinates, which are device pixels. Fills are moved by zero to `farthest` to the right and down.
    SmoothFills(QPainter& painter, FillRows& rows, const QRectF& bounds, const QRectF& area,
                const QPoint& farthest = {});

    // The polygon that the fills that follow are about, moved by so much.
    void Trace(std::span<const Point> polygon, const QPointF& shift);
    // Fills it with the color, moved by whole pixels.
    void Fill(const QColor& color, const QPoint& offset = {});
    void Draw();

private:
    void AddEdge(Point from, Point to);
    void AddStretch(int row, double fromX, double toX, double cover);
    void TakeShares();

    QPainter& m_painter;
    FillRows& m_rows;
    QRect m_shown;
    QRect m_place;    // with what can be moved to where it shows
    QImage m_picture; // null: the painter fills, for what is large
    int m_stride = 0;
    QPolygonF m_polygon; // if the painter fills
};

} // namespace quor
