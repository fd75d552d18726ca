#pragma once
// The canvas on the screen: draws its model and turns the user's mouse and keys into calls on the main form.

#include "base/event.h"
#include "editor/mouse.h"
#include "qt/canvas/canvas_painting.h"

#include <QAbstractScrollArea>
#include <QPointF>
#include <QTimer>

#include <optional>
#include <vector>

namespace quor {

class Canvas;
class frmMain;
struct Area;

class CanvasView final : public QAbstractScrollArea {
public:
    // The main form outlives the view.
    explicit CanvasView(frmMain& main, QWidget* parent = nullptr);

    // For a drag whose mouse events another widget gets: the pointer's place on the screen.
    void TrackDrag(const QPointF& global);
    void EndDrag(const QPointF& global);

    // How many widgets have been drawn since the view was made: tells what a change costs.
    std::uint64_t PaintedWidgets() const noexcept { return m_painted; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    bool IsBusy() const; // something is dragged or sized
    void Repaint(const Area& area);
    void RepaintSelectionFrame();
    void FollowScroll();
    void FollowDrag();
    void FollowPointer(const QPointF& position);
    void ScrollAtEdge();
    void DropAt(const QPointF& position);
    void ShowOutline(std::optional<DragOutline> outline, const QPointF& pointer);
    QRect OutlinePlace() const;
    CanvasTarget TargetAt(const QPointF& position) const;
    void ShowCursor(const CanvasTarget& target);
    bool IsInside(const QPointF& position) const;

    frmMain& m_main;
    Canvas& m_canvas;
    CanvasPainter m_painter;
    bool m_isFollowing = false;            // the bars move after the model, not the other way
    Qt::MouseButton m_held = Qt::NoButton; // that began what is going on
    QPointF m_pressedAt;                   // pixels of the view, scrolled with the canvas
    CanvasTarget m_pressed;
    QPointF m_pointer;
    std::optional<DragOutline> m_outline;
    QRectF m_shownFrame;
    QTimer m_edgeTimer; // runs while something is dragged at the edge
    std::uint64_t m_painted = 0;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
