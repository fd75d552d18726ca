// Sizing: the selected widget's frame follows the pointer from the press on a handle to the release.

#include "base/guard.h"
#include "base/narrow.h"
#include "document/view_document.h"
#include "editor/main_form.h"

#include <algorithm>

namespace quor {

namespace {

// Which edges a handle moves: -1 left or top, 1 right or bottom, 0 none.
struct Edges {
    int x;
    int y;
};
constexpr std::array<Edges, Canvas::handleCount> handleEdges = {
    {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}},
};

// Moves one edge; the other stays, and stops it.
void MoveEdge(int edge, float distance, float& start, float& length)
{
    const float grown = std::max(0.0F, length + static_cast<float>(edge) * distance);
    if (edge < 0) {
        start += length - grown;
    }
    if (edge != 0) {
        length = grown;
    }
}

} // namespace

void frmMain::BeginSizing(std::size_t handle)
{
    Widget& widget = Selected();
    m_sizing = Sizing{handle, &widget, {GetCanvasLeft(widget), GetCanvasTop(widget), widget.Width(), widget.Height()}};
    m_canvas.SetFrame({widget.Bounds(), true, true});
    HideHandles();
    DragChanged.Raise();
}

void frmMain::SizeBy(float dx, float dy)
{
    if (!m_sizing) {
        return;
    }
    Area area = m_sizing->before;
    area.left -= static_cast<float>(m_canvas.ScrollOffsetX());
    area.top -= static_cast<float>(m_canvas.ScrollOffsetY());
    const Edges& edges = handleEdges.at(m_sizing->handle);
    MoveEdge(edges.x, dx, area.left, area.width);
    MoveEdge(edges.y, dy, area.top, area.height);
    m_canvas.SetFrame({area, true, true});
    DragChanged.Raise();
}

Area frmMain::SnappedFrame() const
{
    const Area& frame = m_canvas.Frame().area;
    const float scrollX = static_cast<float>(m_canvas.ScrollOffsetX());
    const float scrollY = static_cast<float>(m_canvas.ScrollOffsetY());
    if (!m_snapToGrid) {
        return frame;
    }
    return {RoundToStep(double{frame.left} + scrollX, StepX()) - scrollX,
            RoundToStep(double{frame.top} + scrollY, StepY()) - scrollY, RoundToStep(frame.width, StepX()),
            RoundToStep(frame.height, StepY())};
}

void frmMain::EndSizing()
{
    if (!m_sizing) {
        return;
    }
    if (!Guard(m_ports.reporter, Ref("frmMain.Handle_MouseUp"), editWords, [&] { FinishSizing(); })) {
        CancelDrag();
    }
}

void frmMain::FinishSizing()
{
    const CanvasHold hold(m_canvas);
    Widget& widget = *m_sizing->widget;
    const Area area = SnappedFrame();
    Element& element = *GetSelectedElement();
    widget.Set(&Widget::Width, area.width);
    widget.Set(&Widget::Height, area.height);
    element.Set(&Element::ObjWidth, widget.Width());
    element.Set(&Element::ObjHeight, widget.Height());
    m_canvas.SetFrame({});
    widget.Set(&Widget::Top, area.top);
    widget.Set(&Widget::Left, area.left);
    element.Set(&Element::ObjLeft, GetCanvasLeft(widget));
    element.Set(&Element::ObjTop, GetCanvasTop(widget));
    m_sizing.reset();
    DragChanged.Raise();
    SelectControl(widget);
    PositionHandles(widget);
}

} // namespace quor
