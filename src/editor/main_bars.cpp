// The bars: tools dispatched by name, and the tools that follow their bands.

#include "base/guard.h"
#include "editor/main_form.h"
#include "editor/tools.h"
#include "platform/files.h"
#include "platform/settings.h"

namespace quor {

namespace {

constexpr std::string_view defaultLayoutFile = "td_cvedit_def_2.dat";
constexpr std::string_view userLayoutFile = "tb_cvedit_user.dat";
constexpr std::string_view usageFile = "tb_cvedit_usage.dat";

std::string PathIn(const std::string& folder, std::string_view file)
{
    return folder + (folder.ends_with('/') ? "" : "/") + std::string(file);
}

} // namespace

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

void frmMain::LoadToolbarLayout()
{
    // The bars can do without their files: what can't be read leaves them as they are built in.
    const auto load = [&](const auto& body) {
        return GuardToLog(m_ports.reporter, Ref("frmMain.LoadToolbarLayout"),
                          "Unable to load the layout of the toolbars.", body);
    };
    Files& files = m_ports.files;
    const std::string folder = m_ports.settings.ToolbarDirectory();
    if (folder.empty()) {
        return; // nowhere to keep them
    }
    load([&] {
        const std::string standard = PathIn(folder, defaultLayoutFile);
        const std::string own = PathIn(folder, userLayoutFile);
        if (!files.FileExists(standard)) {
            SaveLayout(*m_bars, files, standard);
        } else if (!files.FileExists(own)) {
            LoadLayout(*m_bars, files, standard);
        } else {
            load([&] { LoadLayout(*m_bars, files, own); });
            if (files.FileExists(PathIn(folder, usageFile))) {
                LoadUsage(*m_bars, files, PathIn(folder, usageFile));
            }
        }
    });
}

void frmMain::SaveToolbarLayout()
{
    const std::string folder = m_ports.settings.ToolbarDirectory();
    if (!folder.empty()) {
        SaveLayout(*m_bars, m_ports.files, PathIn(folder, userLayoutFile));
        SaveUsage(*m_bars, m_ports.files, PathIn(folder, usageFile));
    }
}

} // namespace quor
