// The selected widget with its eight grab handles, and what is done to it.

#include "base/text.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "format/view_file.h"
#include "platform/timer.h"

namespace quor {

namespace {

constexpr float insertOffset = 120; // twips from the top left of what is visible

// The place of a handle along one side: outside at both ends, in the middle otherwise.
float Along(int edge, float start, float length)
{
    if (edge == 0) {
        return start + (length - Canvas::handleSize) / 2;
    }
    return edge < 0 ? start - Canvas::handleSize : start + length;
}

} // namespace

void frmMain::PositionHandles(const Widget& widget)
{
    Try(Ref("frmMain.PositionHandles"), "Unable to position grab handles on the selected object.", [&] {
        const CanvasHold hold(m_canvas);
        const Area area = widget.Bounds();
        for (std::size_t index = 0; index < Canvas::handleCount; ++index) {
            m_canvas.SetHandle(index, {Along(handleEdges[index].x, area.left, area.width),
                                       Along(handleEdges[index].y, area.top, area.height), true});
        }
    });
}

void frmMain::HideHandles()
{
    Try(Ref("frmMain.HideHandles"), "Unable to clear grab handles from the selected object.", [&] {
        const CanvasHold hold(m_canvas);
        for (std::size_t index = 0; index < Canvas::handleCount; ++index) {
            GrabHandle handle = m_canvas.Handles()[index];
            handle.visible = false;
            m_canvas.SetHandle(index, handle);
        }
    });
}

void frmMain::SelectControl(Widget& widget)
{
    Try(Ref("frmMain.SelectControl"), "An error occurred while selecting a control.", [&] {
        const bool changed = m_selected == nullptr || m_selected->Tag() != widget.Tag();
        m_selected = &widget;
        if (changed) {
            m_ports.live.Tracer->Selects(m_selected);
        }
        m_bars->Focus();
        ShowPropertyPages(widget.Name(), changed);
        SetStatusCaption(&widget);
        UpdateEditTools();
        View().RepaintAll();
    });
}

void frmMain::ReleaseControl()
{
    Try(Ref("frmMain.ReleaseControl"), "Unable to release the selected control.", [&] {
        m_selected = nullptr;
        m_ports.live.Tracer->Selects(nullptr);
        HideHandles();
        ShowPropertyPages(PropertyPanel::viewBand, true);
        SetStatusCaption(nullptr);
        UpdateEditTools();
        View().RepaintAll();
    });
}

void frmMain::ShowPropertyPages(std::string_view name, bool reload)
{
    Try(Ref("frmMain.ShowPropertyPages"), "Unable to load the property dialog for the selected control.", [&] {
        m_panel->ShowPropertyPages(name, name == PropertyPanel::viewBand ? nullptr : &SelectedElement(), reload);
    });
}

void frmMain::SetStatusCaption(const Widget* widget)
{
    std::string text;
    if (widget != nullptr) {
        text = "X: " + Decimal(widget->Left() / twipsPerPixelX) +           //
               "     Y: " + Decimal(widget->Top() / twipsPerPixelY) +       //
               "     Width: " + Decimal(widget->Width() / twipsPerPixelX) + //
               "     Height: " + Decimal(widget->Height() / twipsPerPixelY);
    }
    Band& status = m_bars->BandOf("bndStatus");
    status.Tool("lblSelectedControl").Tool().Set(&BarTool::Caption, text);
    status.Refresh();
    m_ports.live.Tracer->SetsStatus(text);
}

Widget& frmMain::Selected() const
{
    if (m_selected == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return *m_selected;
}

Element& frmMain::SelectedElement() const
{
    return View().CollectionOf(FindKind(Selected().Name())->type).Item(m_selected->Tag());
}

void frmMain::UpdateEditTools()
{
    const bool canOrder = m_selected != nullptr && m_selected->MayBeReordered();
    for (const char* tool : {"miDelete", "miCut", "miCopy", "miAlignToGrid", "miSizeToGrid"}) {
        m_bars->Tool(tool).Set(&BarTool::Enabled, m_selected != nullptr);
    }
    for (const char* tool : {"miSendBack", "miBringFront"}) {
        m_bars->Tool(tool).Set(&BarTool::Enabled, canOrder);
    }
}

void frmMain::InsertElement(std::size_t type)
{
    const Area place = m_canvas.ToView({insertOffset, insertOffset, 0, 0});
    m_mouse.DropControl(type, place.left, place.top);
}

void frmMain::RequestDelete()
{
    tmrDelControl->SetEnabled(true);
}

void frmMain::tmrDelControl_Timer()
{
    Try(Ref("frmMain.tmrDelControl"), "Unable to delete the selected control.", [&] {
        tmrDelControl->SetEnabled(false);
        DeleteSelected();
    });
}

void frmMain::DeleteSelected()
{
    Try(Ref("frmMain.DeleteSelected"), "Unable to delete the selected control.", [&] {
        Collection& collection = View().CollectionOf(FindKind(Selected().Name())->type);
        const std::string key = m_selected->Tag();
        m_mouse.CancelDrag();
        ReleaseControl();
        collection.Remove(key);
    });
}

void frmMain::ClearView()
{
    m_mouse.CancelDrag();
    ReleaseControl();
    View().ClearAll();
}

void frmMain::CopyControl()
{
    Try(Ref("frmMain.CopyControl"), "Unable to copy the selected control to the clipboard.", [&] {
        std::vector<std::uint8_t> record;
        std::int32_t checksum = 0;
        SelectedElement().SaveToArray(record, checksum);
        ClipboardBytes = std::move(record);
        m_bars->Tool("miPaste").Set(&BarTool::Enabled, true);
    });
}

void frmMain::PasteControl()
{
    Try(Ref("frmMain.PasteControl"), "Unable to paste the control from the clipboard.", [&] {
        if (!ClipboardBytes) {
            throw Failure(failures::outOfRange);
        }
        const std::span<const std::uint8_t> record(*ClipboardBytes);
        Element& element = View().CollectionOf(record.front()).Add(0, 0, "", false);
        element.ReadFromArray(record.subspan(view_file::frameSize));
        element.MyControl()->Set(&Widget::Visible, true);
        element.Set(&Element::ObjLeft, 0);
        element.Set(&Element::ObjTop, 0);
    });
}

void frmMain::ReorderControl(bool toFront)
{
    Try(Ref("frmMain.ReorderControl"), "Unable to re-order the selected control.", [&] {
        if (View().GetCount() > 1) {
            View().Reorder(Selected().Tag(), toFront);
            View().RepaintAll();
        }
    });
}

// Both commands read the widget's place within the visible canvas and write view coordinates, as they always have.

void frmMain::AlignToGrid()
{
    Try(Ref("frmMain.AlignToGrid"), editWords, [&] {
        Element& element = SelectedElement();
        element.Set(&Element::ObjTop, m_grid.Rounded(m_selected->Top()));
        element.Set(&Element::ObjLeft, m_grid.Rounded(m_selected->Left()));
        PositionHandles(*m_selected);
    });
}

void frmMain::SizeToGrid()
{
    Try(Ref("frmMain.SizeToGrid"), editWords, [&] {
        Element& element = SelectedElement();
        element.Set(&Element::ObjHeight, m_grid.Rounded(m_selected->Height()));
        element.Set(&Element::ObjWidth, m_grid.Rounded(m_selected->Width()));
        PositionHandles(*m_selected);
    });
}

} // namespace quor
