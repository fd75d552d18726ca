// How elements come onto the canvas, and how they leave it.

#include "base/guard.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "platform/timer.h"

namespace quor {

namespace {
constexpr float insertOffset = 120; // twips from the top left of what is visible
}

void frmMain::InsertElement(std::size_t type)
{
    DropControl(type, 0, 0, static_cast<float>(m_canvas.ScrollOffsetY()) + insertOffset,
                static_cast<float>(m_canvas.ScrollOffsetX()) + insertOffset);
}

void frmMain::AddElement(std::size_t type, float x, float y)
{
    const float left = Snapped(x, StepX());
    const float top = Snapped(y, StepY());
    if (FindKind(static_cast<std::int32_t>(type)) == nullptr) {
        return;
    }
    const CanvasHold hold(m_canvas);
    Widget& widget = *m_view->CollectionOf(static_cast<std::int32_t>(type)).Add(top, left, "", true).MyControl();
    PositionHandles(widget);
    SelectControl(widget);
    m_view->RepaintAll();
}

void frmMain::RequestDelete()
{
    tmrDelControl->SetEnabled(true);
}

void frmMain::tmrDelControl_Timer()
{
    Guard(m_ports.reporter, Ref("frmMain.tmrDelControl"), "Unable to delete the selected control.", [&] {
        tmrDelControl->SetEnabled(false);
        DeleteSelected();
    });
}

void frmMain::DeleteSelected()
{
    Guard(m_ports.reporter, Ref("frmMain.DeleteSelected"), "Unable to delete the selected control.", [&] {
        const std::string array = Selected().Name();
        const std::string key = Selected().Tag();
        CancelDrag();
        ReleaseControl();
        if (const Kind* kind = FindKind(array)) {
            m_view->CollectionOf(kind->type).Remove(key);
        }
    });
}

void frmMain::ClearView()
{
    CancelDrag();
    ReleaseControl();
    m_view->ClearAll();
}

} // namespace quor
