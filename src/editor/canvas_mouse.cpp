#include "editor/canvas_mouse.h"

#include "base/guard.h"
#include "base/narrow.h"
#include "base/text.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "widgets/widget_array.h"

#include <algorithm>

namespace quor {

namespace {

// What a failure at a press or a drop is told under.
struct TargetRefs {
    RefNumber press;
    std::string_view pressWords;
    RefNumber drop;
};

constexpr std::string_view releaseWords = "Unable to release the selected control.";

// In the order of CanvasTarget::What.
constexpr TargetRefs targetRefs[] = {
    {Ref("frmMain.ssScroll_MouseDown"), releaseWords, Ref("frmMain.ssScroll_DragDrop")},
    {Ref("frmMain.imgCVBackground_MouseDown"), releaseWords, Ref("frmMain.imgCVBackground_DragDrop")},
    {Ref("frmMain.Widget_MouseDown"), frmMain::editWords, Ref("frmMain.Widget_DragDrop")},
    {Ref("frmMain.Handle_MouseDown"), frmMain::editWords, Ref("frmMain.Handle_DragDrop")},
};

const TargetRefs& RefsOf(const CanvasTarget& target)
{
    return targetRefs[static_cast<std::size_t>(target.what)];
}

std::string PlaceTip(const Area& area)
{
    return "X: " + Decimal(area.left / twipsPerPixelX) + "   Y: " + Decimal(area.top / twipsPerPixelY);
}

std::string SizeTip(const Area& area)
{
    return Decimal(area.width / twipsPerPixelX) + " \u00D7 " + Decimal(area.height / twipsPerPixelY);
}

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

CanvasMouse::CanvasMouse(frmMain& main) : m_main(main), m_canvas(main.ssScroll()) {}

void CanvasMouse::Press(const CanvasTarget& target, MouseButton button, float x, float y)
{
    if (m_sizing) {
        return; // until the release of the button that began it
    }
    if (IsDragging()) { // its drop went astray
        m_drag = {};
        Changed.Raise();
    }
    Guard(m_main.PageReporter(), RefsOf(target).press, RefsOf(target).pressWords, [&] {
        if (target.what == CanvasTarget::What::Element) {
            Widget_MouseDown(*target.widget, button, x, y);
        } else if (target.what == CanvasTarget::What::Handle) {
            BeginSizing(target.handle);
        } else {
            m_main.ReleaseControl();
        }
    });
}

void CanvasMouse::Widget_MouseDown(Widget& widget, MouseButton button, float x, float y)
{
    if (button != MouseButton::Left) {
        m_main.SelectControl(widget);
        m_main.PositionHandles(widget);
        return;
    }
    DragAnchorX = Narrow<std::int16_t>(x);
    DragAnchorY = Narrow<std::int16_t>(y);
    m_drag = &widget;
    Changed.Raise();
    m_main.SelectControl(widget);
}

void CanvasMouse::BeginToolDrag(std::size_t type)
{
    m_drag = type;
    Changed.Raise();
}

void CanvasMouse::Release(const CanvasTarget& target, MouseButton button)
{
    if (m_sizing) {
        if (!Guard(m_main.PageReporter(), Ref("frmMain.Handle_MouseUp"), frmMain::editWords, [&] { FinishSizing(); })) {
            CancelDrag();
        }
    } else if (button == MouseButton::Right && target.what != CanvasTarget::What::Handle) {
        if (target.what == CanvasTarget::What::Canvas) {
            m_main.ReleaseControl();
        }
        m_main.ShowToolPopup();
    }
}

void CanvasMouse::Drop(const CanvasTarget& target, float x, float y)
{
    const DragSource source = std::exchange(m_drag, {});
    if (source.index() == 0) {
        return;
    }
    Changed.Raise();
    Guard(m_main.PageReporter(), RefsOf(target).drop, frmMain::editWords, [&] {
        const Area place = m_canvas.ToView({target.left + x, target.top + y, 0, 0});
        DropControl(source, place.left, place.top);
        if (target.widget != nullptr && source == DragSource(target.widget)) { // a click
            m_main.SelectedElement().ClickControl();
        }
    });
}

void CanvasMouse::DropControl(DragSource source, float x, float y)
{
    Guard(m_main.PageReporter(), Ref("frmMain.DropControl"), frmMain::editWords, [&] {
        if (const auto* type = std::get_if<std::size_t>(&source)) {
            AddElement(*type, x, y);
        } else {
            MoveSelected(x, y);
        }
    });
}

void CanvasMouse::AddElement(std::size_t type, float x, float y)
{
    const float left = m_main.Grid().Snapped(x);
    const float top = m_main.Grid().Snapped(y);
    const CanvasHold hold(m_canvas);
    Collection& collection = m_main.View().CollectionOf(static_cast<std::int32_t>(type));
    Widget& widget = *collection.Add(top, left, "", true).MyControl();
    m_main.PositionHandles(widget);
    m_main.SelectControl(widget);
    m_main.View().RepaintAll();
}

void CanvasMouse::MoveSelected(float x, float y)
{
    const CanvasHold hold(m_canvas);
    Widget& widget = m_main.Selected();
    Element& element = m_main.SelectedElement();
    widget.Set(&Widget::Left, m_main.Grid().Snapped(double{x} - DragAnchorX));
    widget.Set(&Widget::Top, m_main.Grid().Snapped(double{y} - DragAnchorY));
    element.Set(&Element::ObjLeft, widget.Left());
    element.Set(&Element::ObjTop, widget.Top());
    m_main.SelectControl(widget);
    m_main.PositionHandles(widget);
}

void CanvasMouse::BeginSizing(std::size_t handle)
{
    Widget& widget = m_main.Selected();
    m_sizing = Sizing{handle, &widget, m_canvas.ToView(widget.Bounds())};
    m_canvas.SetFrame({widget.Bounds(), true, true});
    m_main.HideHandles();
    Changed.Raise();
}

void CanvasMouse::SizeBy(float dx, float dy)
{
    if (!m_sizing) {
        return;
    }
    Area area = m_canvas.FromView(m_sizing->before);
    const HandleEdges& edges = handleEdges.at(m_sizing->handle);
    MoveEdge(edges.x, dx, area.left, area.width);
    MoveEdge(edges.y, dy, area.top, area.height);
    m_canvas.SetFrame({area, true, true});
    Changed.Raise();
}

void CanvasMouse::FinishSizing()
{
    const CanvasHold hold(m_canvas);
    Widget& widget = *m_sizing->widget;
    const Area area = SnappedFrame();
    Element& element = m_main.SelectedElement();
    widget.Set(&Widget::Width, area.width);
    widget.Set(&Widget::Height, area.height);
    element.Set(&Element::ObjWidth, widget.Width());
    element.Set(&Element::ObjHeight, widget.Height());
    m_canvas.SetFrame({});
    widget.Set(&Widget::Top, area.top);
    widget.Set(&Widget::Left, area.left);
    const Area place = m_canvas.ToView(widget.Bounds());
    element.Set(&Element::ObjLeft, place.left);
    element.Set(&Element::ObjTop, place.top);
    m_sizing.reset();
    Changed.Raise();
    m_main.SelectControl(widget);
    m_main.PositionHandles(widget);
}

void CanvasMouse::CancelDrag()
{
    if (m_sizing) {
        const Sizing sizing = *std::exchange(m_sizing, std::nullopt);
        m_canvas.SetFrame({});
        m_main.PositionHandles(*sizing.widget);
    }
    const bool wasMoving = std::holds_alternative<Widget*>(std::exchange(m_drag, {}));
    if (wasMoving && m_main.SelectedWidget() != nullptr) {
        m_main.PositionHandles(*m_main.SelectedWidget()); // the press has left them where they were
    }
    Changed.Raise();
}

std::optional<DragOutline> CanvasMouse::OutlineAt(float x, float y) const
{
    std::optional<DragOutline> outline;
    IgnoreFailure([&] {
        if (const auto* widget = std::get_if<Widget*>(&m_drag)) {
            const Area area = LandingPlace({x - DragAnchorX, y - DragAnchorY, (*widget)->Width(), (*widget)->Height()});
            outline = {DragOutline::What::Move, area, PlaceTip(area)};
        } else if (const auto* type = std::get_if<std::size_t>(&m_drag)) {
            const Kind& kind = Kinds()[*type];
            const Widget& pattern = m_canvas.FindArray(kind.array)->Pattern();
            outline = {DragOutline::What::Insert, LandingPlace({x, y, pattern.Width(), pattern.Height()}),
                       std::string(kind.caption)};
        } else if (m_sizing) {
            const Area area = SnappedFrame();
            outline = {DragOutline::What::Size, area, SizeTip(area)};
        }
    });
    return outline;
}

// Where something that is dragged to that place of the visible canvas would land, there.
Area CanvasMouse::LandingPlace(const Area& area) const
{
    Area landing = m_canvas.ToView(area);
    landing.left = m_main.Grid().Snapped(landing.left);
    landing.top = m_main.Grid().Snapped(landing.top);
    return m_canvas.FromView(landing);
}

Area CanvasMouse::SnappedFrame() const
{
    Area area = LandingPlace(m_canvas.Frame().area);
    area.width = m_main.Grid().Snapped(area.width);
    area.height = m_main.Grid().Snapped(area.height);
    return area;
}

} // namespace quor
