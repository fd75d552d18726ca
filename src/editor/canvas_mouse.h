#pragma once
// The mouse on the canvas, from a press to its release: what is pressed, dragged, sized and dropped.

#include "base/event.h"
#include "editor/mouse.h"

#include <optional>
#include <string>
#include <variant>

namespace quor {

class Canvas;
class frmMain;

class CanvasMouse {
public:
    // What is dragged: nothing, a widget, or the toolbox's button of that type of element.
    using DragSource = std::variant<std::monostate, Widget*, std::size_t>;

    explicit CanvasMouse(frmMain& main);

    Event<> Changed; // a drag or a sizing began, moved or ended

    // x and y are twips from the target's top left.
    void Press(const CanvasTarget& target, MouseButton button, float x, float y);
    void Release(const CanvasTarget& target, MouseButton button);
    void Drop(const CanvasTarget& target, float x, float y);

    void BeginToolDrag(std::size_t type);
    // Where the pointer is, within the view: inserts an element of that type, or moves the selected one.
    void DropControl(DragSource source, float x, float y);
    // By the pointer's way since the press on the handle.
    void SizeBy(float dx, float dy);
    // Gives up a drag or a sizing without a change.
    void CancelDrag();

    bool IsDragging() const noexcept { return m_drag.index() != 0; }
    bool IsSizing() const noexcept { return m_sizing.has_value(); }

    // For a pointer at that place of the visible canvas; none when nothing is dragged or sized.
    std::optional<DragOutline> OutlineAt(float x, float y) const;

private:
    struct Sizing {
        std::size_t handle = 0;
        Widget* widget = nullptr;
        Area before; // within the view
    };

    void Widget_MouseDown(Widget& widget, MouseButton button, float x, float y);
    void AddElement(std::size_t type, float x, float y);
    void MoveSelected(float x, float y);
    void BeginSizing(std::size_t handle);
    void FinishSizing();
    Area LandingPlace(const Area& area) const;
    Area SnappedFrame() const;

    frmMain& m_main;
    Canvas& m_canvas;
    DragSource m_drag;
    std::int16_t DragAnchorX = 0; // twips, within the widget
    std::int16_t DragAnchorY = 0;
    std::optional<Sizing> m_sizing;
};

} // namespace quor
