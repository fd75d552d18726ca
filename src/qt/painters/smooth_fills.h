#pragma once
// Fills polygons with smooth edges, one over the other, and draws them as one picture. Polygons of a few hundred pixels
// cost a tenth of what the toolkit takes for them: pointers move all the time.

#include "widgets/outline.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>

#include <span>
#include <vector>

class QPainter;

namespace quor {

class SmoothFills {
public:
    // For polygons within the bounds, of which only what lies in the area shows. Both and all points are in the
    // painter's coordinates, which are device pixels.
    SmoothFills(QPainter& painter, const QRectF& bounds, const QRectF& area);

    void Fill(std::span<const Point> polygon, const QPointF& shift, const QColor& color);
    void Draw();

private:
    void FillByPainter(std::span<const Point> polygon, const QPointF& shift, const QColor& color);
    void AddEdge(Point from, Point to);
    void AddStretch(int row, double fromX, double toX, double cover);
    void Blend(const QColor& color);

    // Of a row: the pixels whose cover differs from that of their left neighbour.
    struct Touched {
        int first;
        int end;
    };

    QPainter& m_painter;
    QRect m_place;
    QImage m_picture; // null: the painter fills, for what is large
    int m_stride = 0;
    std::vector<float> m_cover; // what each pixel has more than its left neighbour; all 0 between fills
    std::vector<Touched> m_touched;
};

} // namespace quor
