// The bars: tools dispatched by name, and the tools that follow their bands.

#include "base/guard.h"
#include "editor/main_form.h"
#include "editor/tools.h"

namespace quor {

void frmMain::BindBars()
{
    m_subscriptions.push_back(
        m_bars->ToolClick.Subscribe([this](const std::string& tool) { abViewEdit_ToolClick(tool); }));
    m_subscriptions.push_back(
        m_bars->BandOpen.Subscribe([this](const std::string& band) { abViewEdit_Band(band, true); }));
    m_subscriptions.push_back(
        m_bars->BandClose.Subscribe([this](const std::string& band) { abViewEdit_Band(band, false); }));
    m_subscriptions.push_back(m_bars->KeyDown.Subscribe([this](std::int16_t code) { KeyDown(code); }));
    m_subscriptions.push_back(m_bars->QueryClose.Subscribe([this](bool& cancel) { abViewEdit_QueryClose(cancel); }));
}

void frmMain::abViewEdit_ToolClick(const std::string& tool)
{
    const EditorTool* row = FindEffect(tool);
    if (row == nullptr) {
        return;
    }
    Guard(m_ports.reporter, Ref("frmMain.abViewEdit_ToolClick"),
          "The toolbar command you clicked on (" + m_bars->Tool(tool).Caption() + ") did not work properly.",
          [&] { row->effect(*this); });
}

void frmMain::abViewEdit_Band(const std::string& band, bool isOpen)
{
    const auto follow = [&] {
        if (band == "bndToolbox") {
            m_bars->Tool("miToolbox").Set(&BarTool::Checked, isOpen);
        } else if (band == "bndObjProps") {
            m_bars->Tool("miToolProps").Set(&BarTool::Checked, isOpen);
        }
    };
    if (isOpen) {
        Guard(m_ports.reporter, Ref("frmMain.abViewEdit_BandOpen"), "An error occurred while updating the toolbar",
              follow);
    } else {
        Guard(m_ports.reporter, Ref("frmMain.abViewEdit_BandClose"), "An error occurred while updating the toolbar.",
              follow);
    }
}

void frmMain::ToggleBand(std::string_view tool, std::string_view band)
{
    // The checked state follows from the band's own event.
    m_bars->BandOf(band).Set(&Band::Visible, !m_bars->Tool(tool).Checked());
    m_bars->RecalcLayout();
}

} // namespace quor
