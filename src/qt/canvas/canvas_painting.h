#pragma once
// Draws the canvas: ground, pictures, grid, the widgets from back to front, and the marks of the selection.

#include "qt/painters/kept_pictures.h"

#include <cstddef>

class QPainter;
class QRegion;
class QSize;

namespace quor {

class Canvas;
class Widget;

// What the canvas shows besides its model.
struct CanvasLook {
    const Widget* faded = nullptr; // the one that is being moved
    bool isEdited = true;          // with the marks of the editor
};

class CanvasPainter {
public:
    // The canvas outlives it.
    explicit CanvasPainter(const Canvas& canvas) : m_canvas(canvas) {}

    // Only what lies in the region, which is in pixels of the view. Says how many widgets were drawn.
    std::size_t Paint(QPainter& painter, const QSize& view, const QRegion& region, const CanvasLook& look);

private:
    void PaintElement(QPainter& painter, const Widget& widget, const QRectF& area, const CanvasLook& look);
    void PaintFaded(QPainter& painter, const Widget& widget, const QRectF& area, const QRect& visible);
    std::size_t PaintWidgets(QPainter& painter, const QRect& view, const QRegion& region, const CanvasLook& look);

    const Canvas& m_canvas;
    KeptPictures m_kept;
};

} // namespace quor
