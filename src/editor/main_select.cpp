// The selected widget and its eight grab handles.

#include "base/guard.h"
#include "base/text.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "forms/bars.h"

#include <cmath>

namespace quor {

namespace {

// Where a handle stands, in halves of the widget's width and height from its top left: 0, 1 or 2.
struct HandlePlace {
    int x;
    int y;
};
constexpr std::array<HandlePlace, Canvas::handleCount> handlePlaces = {
    {{0, 0}, {1, 0}, {2, 0}, {0, 1}, {2, 1}, {0, 2}, {1, 2}, {2, 2}},
};

// The handle's place along one side: outside at both ends, in the middle otherwise.
float Along(int place, float start, float length)
{
    switch (place) {
    case 0:
        return start - Canvas::handleSize;
    case 1:
        return start + (length - Canvas::handleSize) / 2;
    default:
        return start + length;
    }
}

} // namespace

void frmMain::PositionHandles(const Widget& widget)
{
    Guard(m_ports.reporter, Ref("frmMain.PositionHandles"), "Unable to position grab handles on the selected object.",
          [&] {
              const CanvasHold hold(m_canvas);
              const Area area = widget.Bounds();
              for (std::size_t index = 0; index < Canvas::handleCount; ++index) {
                  m_canvas.SetHandle(index, {Along(handlePlaces[index].x, area.left, area.width),
                                             Along(handlePlaces[index].y, area.top, area.height), true});
              }
          });
}

void frmMain::HideHandles()
{
    Guard(m_ports.reporter, Ref("frmMain.HideHandles"), "Unable to clear grab handles from the selected object.", [&] {
        const CanvasHold hold(m_canvas);
        for (std::size_t index = 0; index < Canvas::handleCount; ++index) {
            GrabHandle handle = m_canvas.Handles().at(index);
            handle.visible = false;
            m_canvas.SetHandle(index, handle);
        }
    });
}

void frmMain::SelectControl(Widget& widget)
{
    Guard(m_ports.reporter, Ref("frmMain.SelectControl"), "An error occurred while selecting a control.", [&] {
        const bool changed = m_selected == nullptr || m_selected->Tag() != widget.Tag();
        m_selected = &widget;
        if (changed) {
            m_ports.live.Tracer->Selects(m_selected);
        }
        m_bars->Focus();
        ShowPropertyPages(widget.Name(), changed);
        SetStatusCaption(&widget);
        UpdateEditTools();
        m_view->RepaintAll();
    });
}

void frmMain::ReleaseControl()
{
    Guard(m_ports.reporter, Ref("frmMain.ReleaseControl"), "Unable to release the selected control.", [&] {
        m_selected = nullptr;
        m_ports.live.Tracer->Selects(nullptr);
        HideHandles();
        ShowPropertyPages(PropertyPanel::viewBand, true);
        SetStatusCaption(nullptr);
        UpdateEditTools();
        m_view->RepaintAll();
    });
}

void frmMain::ShowPropertyPages(std::string_view name, bool reload)
{
    Guard(m_ports.reporter, Ref("frmMain.ShowPropertyPages"),
          "Unable to load the property dialog for the selected control.", [&] {
              Element* element = name == PropertyPanel::viewBand ? nullptr : GetSelectedElement();
              m_panel->ShowPropertyPages(name, element, reload);
          });
}

void frmMain::SetStatusCaption(const Widget* widget)
{
    std::string text;
    if (widget != nullptr) {
        const auto part = [](std::string_view words, float twips, float twipsPerPixel) {
            return std::string(words) + Decimal(twips / twipsPerPixel);
        };
        text = part("X: ", widget->Left(), twipsPerPixelX) + "     " + part("Y: ", widget->Top(), twipsPerPixelY) +
               "     " + part("Width: ", widget->Width(), twipsPerPixelX) + "     " +
               part("Height: ", widget->Height(), twipsPerPixelY);
    }
    Band& status = m_bars->BandOf("bndStatus");
    status.Tool("lblSelectedControl").Tool().Set(&BarTool::Caption, text);
    status.Refresh();
    m_ports.live.Tracer->SetsStatus(text);
}

Element* frmMain::GetSelectedElement() const
{
    const Widget& widget = Selected();
    const Kind* kind = FindKind(widget.Name());
    return kind == nullptr ? nullptr : &m_view->CollectionOf(kind->type).Item(widget.Tag());
}

Widget& frmMain::Selected() const
{
    if (m_selected == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return *m_selected;
}

void frmMain::UpdateEditTools()
{
    const bool hasSelection = m_selected != nullptr;
    const bool canOrder = hasSelection && m_selected->MayBeReordered();
    m_bars->Tool("miDelete").Set(&BarTool::Enabled, hasSelection);
    m_bars->Tool("miSendBack").Set(&BarTool::Enabled, canOrder);
    m_bars->Tool("miBringFront").Set(&BarTool::Enabled, canOrder);
    for (const char* tool : {"miCut", "miCopy", "miAlignToGrid", "miSizeToGrid"}) {
        m_bars->Tool(tool).Set(&BarTool::Enabled, hasSelection);
    }
}

float frmMain::GetCanvasLeft(const Widget& widget) const
{
    return static_cast<float>(m_canvas.ScrollOffsetX()) + widget.Left();
}

float frmMain::GetCanvasTop(const Widget& widget) const
{
    return static_cast<float>(m_canvas.ScrollOffsetY()) + widget.Top();
}

} // namespace quor
