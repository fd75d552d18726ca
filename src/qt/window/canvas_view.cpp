#include "qt/window/canvas_view.h"

#include "editor/main_form.h"
#include "forms/bars.h"
#include "qt/canvas/marks.h"
#include "qt/painters/painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <cmath>

namespace quor {

namespace {

constexpr int handleReach = 9;      // pixels: handles and frame stand this far outside their widget at most
constexpr int scrollStep = 20;      // pixels
constexpr int edgeWidth = 12;       // pixels in which what is dragged scrolls the canvas
constexpr int edgeScrollPause = 60; // ms

float Twips(qreal pixels)
{
    return static_cast<float>(pixels) * twipsPerPixelX;
}

// The pixel that the pointer is on: places are whole pixels at any scale factor.
QPointF WholePixel(const QPointF& position)
{
    return {std::floor(position.x()), std::floor(position.y())};
}

MouseButton ButtonOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    default:
        return MouseButton::Left;
    }
}

bool IsKnown(Qt::MouseButton button)
{
    return button == Qt::LeftButton || button == Qt::RightButton || button == Qt::MiddleButton;
}

Qt::CursorShape CursorOf(std::size_t handle)
{
    constexpr std::array cursors = {Qt::SizeFDiagCursor, Qt::SizeVerCursor,   Qt::SizeBDiagCursor, Qt::SizeHorCursor,
                                    Qt::SizeHorCursor,   Qt::SizeBDiagCursor, Qt::SizeVerCursor,   Qt::SizeFDiagCursor};
    return cursors.at(handle);
}

} // namespace

CanvasView::CanvasView(frmMain& main, QWidget* parent)
    : QAbstractScrollArea(parent), m_main(main), m_canvas(main.ssScroll()), m_painter(m_canvas)
{
    setObjectName(QStringLiteral("ssScroll"));
    setAccessibleName(QStringLiteral("Canvas"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::Window); // of the bars
    setAutoFillBackground(true);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    horizontalScrollBar()->setSingleStep(scrollStep * static_cast<int>(twipsPerPixelX));
    verticalScrollBar()->setSingleStep(scrollStep * static_cast<int>(twipsPerPixelY));
    m_edgeTimer.setInterval(edgeScrollPause);
    connect(&m_edgeTimer, &QTimer::timeout, this, &CanvasView::ScrollAtEdge);
    m_subscriptions.push_back(m_canvas.Changed.Subscribe([this](const Area& area) { Repaint(area); }));
    m_subscriptions.push_back(m_canvas.Scrolled.Subscribe([this] { FollowScroll(); }));
    m_subscriptions.push_back(m_main.Mouse().Changed.Subscribe([this] { FollowDrag(); }));
    m_subscriptions.push_back(m_main.abViewEdit().Focused.Subscribe([this] { setFocus(); }));
}

bool CanvasView::IsBusy() const
{
    return m_main.Mouse().IsDragging() || m_main.Mouse().IsSizing();
}

// While something is dragged, all keys are the drag's.
bool CanvasView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsBusy()) {
        event->accept();
        return true;
    }
    // A dialog that opens at a press gets the release, too.
    const bool losesMouse = event->type() == QEvent::WindowDeactivate || event->type() == QEvent::WindowBlocked;
    if (losesMouse && IsBusy()) {
        m_main.Mouse().CancelDrag();
    }
    return QAbstractScrollArea::event(event);
}

void CanvasView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const bool isMoving = m_outline && m_outline->what == DragOutline::What::Move;
    m_painted += m_painter.Paint(painter, viewport()->size(), event->region(),
                                 {.faded = isMoving ? m_main.SelectedWidget() : nullptr});
    if (m_outline) {
        DrawOutline(painter, PixelsOf(m_outline->area), m_outline->what == DragOutline::What::Insert);
        PointerTip(ToQt(m_outline->tip), font(), m_pointer.toPoint(), viewport()->size()).Draw(painter, font());
    }
}

void CanvasView::Repaint(const Area& area)
{
    const QRectF shown = PixelsOf(area).intersected(QRectF(viewport()->rect()).adjusted(-8, -8, 8, 8));
    if (!shown.isEmpty()) {
        viewport()->update(shown.toAlignedRect().adjusted(-1, -1, 1, 1));
    }
    RepaintSelectionFrame();
}

// The frame belongs to no area of the model: it stands between the handles.
void CanvasView::RepaintSelectionFrame()
{
    const QRectF frame = SelectionFrame(m_canvas);
    if (frame == m_shownFrame) {
        return;
    }
    for (const QRectF& each : {m_shownFrame, frame}) {
        if (!each.isNull()) {
            const QRect area = each.toAlignedRect();
            viewport()->update(QRegion(area.adjusted(-handleReach, -handleReach, handleReach, handleReach)) -
                               area.adjusted(3, 3, -3, -3));
        }
    }
    m_shownFrame = frame;
}

void CanvasView::resizeEvent(QResizeEvent* /*event*/)
{
    FollowScroll();
}

// The bars count twips. The model's maxima are the canvas's extent, of which the view shows a page.
void CanvasView::FollowScroll()
{
    m_isFollowing = true;
    const auto follow = [](QScrollBar& bar, int extent, int page, int position) {
        bar.setPageStep(page);
        bar.setRange(0, std::max({0, extent - page, position}));
        bar.setValue(position);
    };
    follow(*horizontalScrollBar(), m_canvas.ScrollMaxX(), static_cast<int>(Twips(viewport()->width())),
           m_canvas.ScrollOffsetX());
    follow(*verticalScrollBar(), m_canvas.ScrollMaxY(), static_cast<int>(Twips(viewport()->height())),
           m_canvas.ScrollOffsetY());
    m_isFollowing = false;
}

void CanvasView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    if (m_isFollowing) {
        return;
    }
    const auto onPixels = [](int twips, float perPixel) {
        return static_cast<std::int32_t>(qRound(static_cast<float>(twips) / perPixel) * static_cast<int>(perPixel));
    };
    const QPoint before(m_canvas.ScrollOffsetX(), m_canvas.ScrollOffsetY());
    m_canvas.ScrollTo(onPixels(horizontalScrollBar()->value(), twipsPerPixelX),
                      onPixels(verticalScrollBar()->value(), twipsPerPixelY));
    m_pressedAt += (QPointF(before) - QPointF(m_canvas.ScrollOffsetX(), m_canvas.ScrollOffsetY())) / twipsPerPixelX;
}

CanvasTarget CanvasView::TargetAt(const QPointF& position) const
{
    const Area shown{0, 0, Twips(viewport()->width()), Twips(viewport()->height())};
    return HitTest(m_canvas, shown, Twips(position.x()), Twips(position.y()));
}

bool CanvasView::IsInside(const QPointF& position) const
{
    return QRectF(viewport()->rect()).contains(position);
}

void CanvasView::mousePressEvent(QMouseEvent* event)
{
    if (IsBusy() || !IsKnown(event->button())) {
        return;
    }
    m_held = event->button();
    m_pressedAt = m_pointer = WholePixel(event->position());
    m_pressed = TargetAt(m_pressedAt);
    m_main.Mouse().Press(m_pressed, ButtonOf(m_held), Twips(m_pressedAt.x()) - m_pressed.left,
                         Twips(m_pressedAt.y()) - m_pressed.top);
}

void CanvasView::mouseMoveEvent(QMouseEvent* event)
{
    FollowPointer(WholePixel(event->position()));
    if (!IsBusy()) {
        ShowCursor(TargetAt(m_pointer));
    }
}

void CanvasView::FollowPointer(const QPointF& position)
{
    if (m_main.Mouse().IsSizing()) {
        m_pointer = position;
        m_main.Mouse().SizeBy(Twips(position.x() - m_pressedAt.x()), Twips(position.y() - m_pressedAt.y()));
    } else {
        const bool isOver = m_main.Mouse().IsDragging() && IsInside(position);
        ShowOutline(isOver ? m_main.Mouse().OutlineAt(Twips(position.x()), Twips(position.y())) : std::nullopt,
                    position);
    }
    if (!IsBusy()) {
        m_edgeTimer.stop();
    } else if (!m_edgeTimer.isActive()) {
        m_edgeTimer.start();
    }
}

// While something is dragged or sized there, so that it gets to what can't be seen yet.
void CanvasView::ScrollAtEdge()
{
    const auto scroll = [](QScrollBar& bar, qreal place, int length) {
        if (place < edgeWidth) {
            bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
        } else if (place >= length - edgeWidth) {
            bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        }
    };
    if (m_main.Mouse().IsSizing() || (m_main.Mouse().IsDragging() && IsInside(m_pointer))) {
        scroll(*horizontalScrollBar(), m_pointer.x(), viewport()->width());
        scroll(*verticalScrollBar(), m_pointer.y(), viewport()->height());
    }
    FollowPointer(m_pointer);
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != m_held) {
        return;
    }
    m_held = Qt::NoButton;
    const QPointF position = WholePixel(event->position());
    if (m_main.Mouse().IsDragging()) {
        DropAt(position);
    } else {
        m_main.Mouse().Release(m_pressed, ButtonOf(event->button()));
        const bool isClick =
            m_pressed.what == CanvasTarget::What::Canvas && TargetAt(position).what == CanvasTarget::What::Canvas;
        if (isClick && event->button() == Qt::LeftButton) {
            m_main.ReleaseControl();
        }
    }
    if (!m_main.IsUnloading()) {
        ShowCursor(TargetAt(position));
    }
}

void CanvasView::TrackDrag(const QPointF& global)
{
    FollowPointer(WholePixel(viewport()->mapFromGlobal(global)));
}

void CanvasView::EndDrag(const QPointF& global)
{
    if (m_main.Mouse().IsDragging()) {
        DropAt(WholePixel(viewport()->mapFromGlobal(global)));
    }
}

void CanvasView::DropAt(const QPointF& position)
{
    if (!IsInside(position)) {
        m_main.Mouse().CancelDrag();
        return;
    }
    const CanvasTarget target = TargetAt(position);
    m_main.Mouse().Drop(target, Twips(position.x()) - target.left, Twips(position.y()) - target.top);
}

void CanvasView::keyPressEvent(QKeyEvent* event)
{
    if (IsBusy()) {
        if (event->key() == Qt::Key_Escape) {
            m_main.abViewEdit().KeyDown.Raise(canvas_keys::escape);
        }
    } else if (event->key() == Qt::Key_Delete) {
        m_main.abViewEdit().KeyDown.Raise(canvas_keys::del);
    } else {
        event->ignore();
    }
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard && !IsBusy()) {
        m_main.ShowToolPopup();
    } else {
        event->ignore(); // the mouse opens it at the release
    }
}

void CanvasView::focusOutEvent(QFocusEvent* event)
{
    if (IsBusy() && event->reason() == Qt::ActiveWindowFocusReason) {
        m_main.Mouse().CancelDrag();
    }
    QAbstractScrollArea::focusOutEvent(event);
}

bool CanvasView::focusNextPrevChild(bool next)
{
    return !IsBusy() && QAbstractScrollArea::focusNextPrevChild(next);
}

void CanvasView::FollowDrag()
{
    if (!IsBusy()) {
        ShowOutline(std::nullopt, m_pointer);
        return;
    }
    setFocus(); // for Escape
    if (m_main.Mouse().IsSizing()) {
        ShowOutline(m_main.Mouse().OutlineAt(Twips(m_pointer.x()), Twips(m_pointer.y())), m_pointer);
    }
}

void CanvasView::ShowOutline(std::optional<DragOutline> outline, const QPointF& pointer)
{
    // The widget that is moved is faded, so its own place looks different when that begins or ends.
    const bool wasMoving = m_outline && m_outline->what == DragOutline::What::Move;
    const bool isMoving = outline && outline->what == DragOutline::What::Move;
    viewport()->update(OutlinePlace());
    m_outline = std::move(outline);
    m_pointer = pointer;
    viewport()->update(OutlinePlace());
    const Widget* moved = m_main.SelectedWidget();
    if (wasMoving != isMoving && moved != nullptr) {
        Repaint(moved->Bounds());
    }
}

QRect CanvasView::OutlinePlace() const
{
    if (!m_outline) {
        return {};
    }
    const PointerTip tip(ToQt(m_outline->tip), font(), m_pointer.toPoint(), viewport()->size());
    return PixelsOf(m_outline->area).toAlignedRect().adjusted(-1, -1, 1, 1).united(tip.Place().adjusted(-1, -1, 1, 1));
}

void CanvasView::ShowCursor(const CanvasTarget& target)
{
    if (target.what == CanvasTarget::What::Handle) {
        viewport()->setCursor(CursorOf(target.handle));
    } else {
        viewport()->unsetCursor();
    }
}

} // namespace quor
