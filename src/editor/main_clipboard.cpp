// Copy and paste of one element as its record, and the stacking order.

#include "base/guard.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "format/view_file.h"
#include "forms/bars.h"

namespace quor {

void frmMain::CopyControl()
{
    Guard(m_ports.reporter, Ref("frmMain.CopyControl"), "Unable to copy the selected control to the clipboard.", [&] {
        std::vector<std::uint8_t> record;
        std::int32_t checksum = 0;
        GetSelectedElement()->SaveToArray(record, checksum);
        ClipboardBytes = std::move(record);
        m_bars->Tool("miPaste").Set(&BarTool::Enabled, true);
    });
}

void frmMain::PasteControl()
{
    Guard(m_ports.reporter, Ref("frmMain.PasteControl"), "Unable to paste the control from the clipboard.", [&] {
        if (!ClipboardBytes) {
            throw Failure(failures::outOfRange);
        }
        const std::span<const std::uint8_t> record(*ClipboardBytes);
        const std::int32_t type = record.front();
        if (FindKind(type) == nullptr) {
            throw Failure(failures::objectNotSet);
        }
        Element& element = m_view->CollectionOf(type).Add(0, 0, "", false);
        element.ReadFromArray(record.subspan(view_file::frameSize));
        element.MyControl()->Set(&Widget::Visible, true);
        element.Set(&Element::ObjLeft, 0);
        element.Set(&Element::ObjTop, 0);
    });
}

void frmMain::ReorderControl(bool toFront)
{
    Guard(m_ports.reporter, Ref("frmMain.ReorderControl"), "Unable to re-order the selected control.", [&] {
        if (m_view->GetCount() <= 1) {
            return;
        }
        m_view->Reorder(Selected().Tag(), toFront);
        m_view->RepaintAll();
    });
}

} // namespace quor
