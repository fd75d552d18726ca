#pragma once
// Draws the canvas: ground, pictures, grid, the widgets from back to front, and the marks of the selection.

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

// Only what lies in the region, which is in pixels of the view. Says how many widgets were drawn.
std::size_t PaintCanvas(QPainter& painter, const Canvas& canvas, const QSize& view, const QRegion& region,
                        const CanvasLook& look);

} // namespace quor
