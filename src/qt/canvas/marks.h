#pragma once
// The marks of the editor on the canvas: handles and frame of the selection, outlines of what is dragged or sized,
// tips.

#include <QRect>
#include <QString>

class QFont;
class QPainter;

namespace quor {

class Canvas;

// The frame around the selected widget just within its handles, in pixels; empty if none is selected.
QRectF SelectionFrame(const Canvas& canvas);

// The frame and the handles that are visible.
void DrawSelection(QPainter& painter, const Canvas& canvas);

// The outline of an element that paints nothing, so that it can be found.
void DrawGhost(QPainter& painter, const QRectF& area);

// What follows the pointer; that of a new element is dashed.
void DrawOutline(QPainter& painter, const QRectF& area, bool isNew);

// The numbers beside the pointer, kept within the view.
class PointerTip {
public:
    PointerTip(const QString& text, const QFont& font, const QPoint& pointer, const QSize& view);

    const QRect& Place() const noexcept { return m_place; }
    void Draw(QPainter& painter, const QFont& font) const;

private:
    QString m_text;
    QRect m_place;
};

} // namespace quor
