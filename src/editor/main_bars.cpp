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
constexpr std::string_view loadWords = "Unable to load the layout of the toolbars.";

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

// The bars can do without their files: what can't be read leaves them as they are built in. The load of a file that was
// there and couldn't be read tells that the close is not to write over it.
bool frmMain::LoadBarsFile(const std::function<void()>& load)
{
    bool isReplaceable = false;
    GuardToLog(m_ports.reporter, Ref("frmMain.LoadToolbarLayout"), loadWords, [&] {
        try {
            load();
            isReplaceable = true;
        } catch (const Failure& failure) {
            isReplaceable = failure.Number() == failures::invalidCall; // it is damaged
            throw;
        }
    });
    return isReplaceable;
}

void frmMain::LoadToolbarLayout()
{
    Files& files = m_ports.files;
    GuardToLog(m_ports.reporter, Ref("frmMain.LoadToolbarLayout"), loadWords, [&] {
        const std::string folder = m_ports.settings.ToolbarDirectory();
        if (folder.empty()) {
            return; // nowhere to keep them
        }
        const std::string standard = PathIn(folder, defaultLayoutFile);
        const std::string own = PathIn(folder, userLayoutFile);
        const std::string usage = PathIn(folder, usageFile);
        const bool hasStandard = files.FileExists(standard);
        if (hasStandard && files.FileExists(own)) {
            m_replacesLayout = LoadBarsFile([&] { LoadLayout(*m_bars, files, own); });
            m_replacesUsage = !files.FileExists(usage) || LoadBarsFile([&] { LoadUsage(*m_bars, files, usage); });
            return;
        }
        m_replacesLayout = m_replacesUsage = true;
        if (hasStandard) {
            LoadLayout(*m_bars, files, standard);
        } else {
            SaveLayout(*m_bars, files, standard);
        }
    });
}

void frmMain::SaveToolbarLayout()
{
    GuardToLog(m_ports.reporter, Ref("frmMain.SaveToolbarLayout"), "Unable to save the layout of the toolbars.", [&] {
        const std::string folder = m_ports.settings.ToolbarDirectory();
        if (!folder.empty() && m_replacesLayout) {
            SaveLayout(*m_bars, m_ports.files, PathIn(folder, userLayoutFile));
        }
        if (!folder.empty() && m_replacesUsage) {
            SaveUsage(*m_bars, m_ports.files, PathIn(folder, usageFile));
        }
    });
}

} // namespace quor
