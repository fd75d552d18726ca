// The mouse and the keyboard on the canvas: presses, releases, and drops of what is dragged.

#include "base/guard.h"
#include "base/narrow.h"
#include "base/text.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "forms/bars.h"
#include "widgets/widget_array.h"

namespace quor {

namespace {

std::string PlaceTip(const Area& area)
{
    return "X: " + Decimal(area.left / twipsPerPixelX) + "   Y: " + Decimal(area.top / twipsPerPixelY);
}

std::string SizeTip(const Area& area)
{
    return Decimal(area.width / twipsPerPixelX) + " \u00D7 " + Decimal(area.height / twipsPerPixelY);
}

} // namespace

void frmMain::Press(const CanvasTarget& target, MouseButton button, float x, float y)
{
    if (m_sizing) {
        return; // until the release of the button that began it
    }
    if (IsDragging()) { // its drop went astray
        m_drag = {};
        DragChanged.Raise();
    }
    switch (target.what) {
    case CanvasTarget::What::Element:
        Guard(m_ports.reporter, Ref("frmMain.Widget_MouseDown"), editWords,
              [&] { Widget_MouseDown(*target.widget, button, x, y); });
        break;
    case CanvasTarget::What::Handle:
        Guard(m_ports.reporter, Ref("frmMain.Handle_MouseDown"), editWords, [&] { BeginSizing(target.handle); });
        break;
    case CanvasTarget::What::Background:
        Guard(m_ports.reporter, Ref("frmMain.imgCVBackground_MouseDown"), "Unable to release the selected control.",
              [&] { ReleaseControl(); });
        break;
    case CanvasTarget::What::Canvas:
        Guard(m_ports.reporter, Ref("frmMain.ssScroll_MouseDown"), "Unable to release the selected control.",
              [&] { ReleaseControl(); });
        break;
    }
}

void frmMain::Widget_MouseDown(Widget& widget, MouseButton button, float x, float y)
{
    if (button != MouseButton::Left) {
        SelectControl(widget);
        PositionHandles(widget);
        return;
    }
    DragAnchorX = Narrow<std::int16_t>(x);
    DragAnchorY = Narrow<std::int16_t>(y);
    m_drag = &widget;
    DragChanged.Raise();
    SelectControl(widget);
}

void frmMain::BeginToolDrag(std::size_t index)
{
    m_drag = index;
    DragChanged.Raise();
}

void frmMain::Release(const CanvasTarget& target, MouseButton button, float /*x*/, float /*y*/)
{
    if (m_sizing) {
        EndSizing();
        return;
    }
    switch (target.what) {
    case CanvasTarget::What::Element:
        Guard(m_ports.reporter, Ref("frmMain.Widget_MouseUp"), editWords, [&] {
            if (button == MouseButton::Right) {
                ShowToolPopup();
            }
        });
        break;
    case CanvasTarget::What::Background:
        Guard(m_ports.reporter, Ref("frmMain.imgCVBackground_MouseUp"), editWords,
              [&] { Canvas_Release(true, button); });
        break;
    case CanvasTarget::What::Canvas:
        Guard(m_ports.reporter, Ref("frmMain.ssScroll_MouseUp"), editWords, [&] { Canvas_Release(false, button); });
        break;
    case CanvasTarget::What::Handle:
        break;
    }
}

void frmMain::Canvas_Release(bool isBackground, MouseButton button)
{
    if (button != MouseButton::Right) {
        return;
    }
    if (!isBackground) {
        ReleaseControl();
    }
    ShowToolPopup();
}

void frmMain::ShowToolPopup()
{
    Guard(m_ports.reporter, Ref("frmMain.Widget_MouseUp"), editWords, [&] { m_bars->PopupBand("bndToolPopup"); });
}

void frmMain::ssScroll_Click()
{
    Guard(m_ports.reporter, Ref("frmMain.ssScroll_Click"), editWords, [&] { ReleaseControl(); });
}

void frmMain::ssScroll_Scroll()
{
    Guard(m_ports.reporter, Ref("frmMain.ssScroll_Scroll"), editWords, [&] { m_view->RepaintAll(); });
}

void frmMain::Drop(const CanvasTarget& target, float x, float y)
{
    const DragSource source = std::exchange(m_drag, {});
    if (source.index() == 0) {
        return;
    }
    DragChanged.Raise();
    const auto scrollX = static_cast<float>(m_canvas.ScrollOffsetX());
    const auto scrollY = static_cast<float>(m_canvas.ScrollOffsetY());
    switch (target.what) {
    case CanvasTarget::What::Element:
        Guard(m_ports.reporter, Ref("frmMain.Widget_DragDrop"), editWords, [&] {
            DropControl(source, x, y, GetCanvasTop(*target.widget), GetCanvasLeft(*target.widget));
            if (source == DragSource(target.widget)) { // a click
                GetSelectedElement()->ClickControl();
            }
        });
        break;
    case CanvasTarget::What::Handle:
        Guard(m_ports.reporter, Ref("frmMain.Handle_DragDrop"), editWords, [&] {
            const GrabHandle& handle = m_canvas.Handles().at(target.handle);
            DropControl(source, x, y, handle.top + scrollY, handle.left + scrollX);
        });
        break;
    case CanvasTarget::What::Canvas:
        Guard(m_ports.reporter, Ref("frmMain.ssScroll_DragDrop"), editWords,
              [&] { DropControl(source, x, y, scrollY, scrollX); });
        break;
    case CanvasTarget::What::Background:
        // X and Y are view coordinates already.
        Guard(m_ports.reporter, Ref("frmMain.imgCVBackground_DragDrop"), editWords,
              [&] { DropControl(source, x, y, 0, 0); });
        break;
    }
}

void frmMain::DropControl(DragSource source, float x, float y, float offsetTop, float offsetLeft)
{
    Guard(m_ports.reporter, Ref("frmMain.DropControl"), editWords, [&] {
        x += offsetLeft;
        y += offsetTop;
        if (const auto* type = std::get_if<std::size_t>(&source)) {
            AddElement(*type, x, y);
        } else {
            MoveSelected(x, y);
        }
    });
}

void frmMain::MoveSelected(float x, float y)
{
    const CanvasHold hold(m_canvas);
    Widget& widget = Selected();
    Element& element = *GetSelectedElement();
    widget.Set(&Widget::Left, Snapped(double{x} - DragAnchorX, StepX()));
    widget.Set(&Widget::Top, Snapped(double{y} - DragAnchorY, StepY()));
    element.Set(&Element::ObjLeft, widget.Left());
    element.Set(&Element::ObjTop, widget.Top());
    SelectControl(widget);
    PositionHandles(widget);
}

void frmMain::CancelDrag()
{
    if (m_sizing) {
        const Sizing sizing = *std::exchange(m_sizing, std::nullopt);
        m_canvas.SetFrame({});
        PositionHandles(*sizing.widget);
    }
    const bool wasMoving = std::holds_alternative<Widget*>(std::exchange(m_drag, {}));
    if (wasMoving && m_selected != nullptr) {
        PositionHandles(*m_selected); // the press has left them where they were
    }
    DragChanged.Raise();
}

std::optional<DragOutline> frmMain::OutlineAt(float x, float y) const
{
    std::optional<DragOutline> outline;
    IgnoreFailure([&] {
        if (const auto* widget = std::get_if<Widget*>(&m_drag)) {
            const Area area = LandingPlace(x - DragAnchorX, y - DragAnchorY, **widget);
            outline = {DragOutline::What::Move, area, PlaceTip(area)};
        } else if (const auto* type = std::get_if<std::size_t>(&m_drag)) {
            const Kind& kind = Kinds()[*type];
            const Area area = LandingPlace(x, y, m_canvas.FindArray(kind.array)->Pattern());
            outline = {DragOutline::What::Insert, area, std::string(kind.caption)};
        } else if (m_sizing) {
            const Area area = SnappedFrame();
            outline = {DragOutline::What::Size, area, SizeTip(area)};
        }
    });
    return outline;
}

// Where something whose top left is dragged to that place of the visible canvas would land, there.
Area frmMain::LandingPlace(float left, float top, const Widget& sizes) const
{
    const auto scrollX = static_cast<float>(m_canvas.ScrollOffsetX());
    const auto scrollY = static_cast<float>(m_canvas.ScrollOffsetY());
    return {Snapped(left + scrollX, StepX()) - scrollX, Snapped(top + scrollY, StepY()) - scrollY, sizes.Width(),
            sizes.Height()};
}

void frmMain::KeyDown(std::int16_t code)
{
    Guard(m_ports.reporter, Ref("frmMain.abViewEdit_KeyDown"),
          "An error occurred. The action you are trying to perform failed.", [&] {
              if (code == canvas_keys::del) {
                  RequestDelete();
              } else if (code == canvas_keys::escape && (IsDragging() || IsSizing())) {
                  CancelDrag();
              }
          });
}

} // namespace quor
