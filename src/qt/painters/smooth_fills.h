#pragma once
// Fills polygons with smooth edges, one over the other, and draws them as one picture. Polygons of a few hundred pixels
// cost a tenth of what the toolkit takes for them: pointers move all the time. One at a time in a thread.

#include "widgets/outline.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <cstdint>
#include <span>
#include <vector>

class QPainter;

namespace quor {

// What the toolkit can fill of a polygon in device pixels that is moved by so much.
QPolygonF ReachablePart(std::span<const Point> polygon, const QPointF& shift);

class SmoothFills {
public:
    // For polygons within the bounds, of which only what lies in the area shows. Both and all points are in the
    // painter's coordinates, which are device pixels.
    SmoothFills(QPainter& painter, const QRectF& bounds, const QRectF& area);

    // The polygon that the fills that follow are about, moved by so much.
    void Trace(std::span<const Point> polygon, const QPointF& shift);
    // Fills it with the color, moved by whole pixels.
    void Fill(const QColor& color, const QPoint& offset = {});
    void Draw();

private:
    void AddEdge(Point from, Point to);
    void AddStretch(int row, double fromX, double toX, double cover);
    void TakeShares();

    // Of a row: the pixels that the polygon may cover a part of.
    struct Touched {
        int first;
        int end;
    };

    // What the polygon that is traced covers, row by row.
    struct Scratch {
        std::vector<int> cover;           // more than of the left neighbour; all 0 but while edges are added
        std::vector<std::uint8_t> shares; // of each pixel within what is touched
        std::vector<Touched> touched;
    };
    static Scratch& ScratchOfThread();

    QPainter& m_painter;
    Scratch& m_scratch;
    QRect m_place;
    QImage m_picture; // null: the painter fills, for what is large
    QRgb* m_pixels = nullptr;
    bool m_isBlank = true; // nothing is filled yet
    int m_stride = 0;
    QPolygonF m_polygon; // if the painter fills
};

} // namespace quor
