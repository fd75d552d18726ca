// The bars: their files, tools dispatched by name, the tools that follow their bands, and the dialogs behind them.

#include "editor/frm_customize.h"
#include "editor/frm_options.h"
#include "editor/main_form.h"
#include "editor/tools.h"
#include "platform/files.h"
#include "platform/forms.h"
#include "platform/help.h"
#include "platform/settings.h"
#include "support/frm_about.h"

namespace quor {

namespace {

constexpr std::string_view loadWords = "Unable to load the layout of the toolbars.";

// The files of the bars; none where there is no folder to keep them.
struct BarsFiles {
    explicit BarsFiles(const std::string& folder) : isKept(!folder.empty())
    {
        const std::string start = folder + (folder.ends_with('/') ? "" : "/");
        standard = start + "td_cvedit_def_2.dat";
        own = start + "tb_cvedit_user.dat";
        usage = start + "tb_cvedit_usage.dat";
    }

    bool isKept;
    std::string standard;
    std::string own;
    std::string usage;
};

} // namespace

// The bars can do without their files: what can't be read leaves them as they are built in. False tells that the close
// is not to write over it: it was there and couldn't be read.
bool frmMain::LoadBarsFile(void (*load)(Bars& bars, Files& files, const std::string& path), const std::string& path)
{
    bool isReplaceable = false;
    GuardToLog(m_ports.reporter, Ref("frmMain.LoadToolbarLayout"), loadWords, [&] {
        try {
            load(*m_bars, m_ports.files, path);
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
    GuardToLog(m_ports.reporter, Ref("frmMain.LoadToolbarLayout"), loadWords, [&] {
        Files& files = m_ports.files;
        const BarsFiles paths(m_ports.settings.ToolbarDirectory());
        if (!paths.isKept) {
            return;
        }
        const bool hasStandard = files.FileExists(paths.standard);
        if (hasStandard && files.FileExists(paths.own)) {
            m_replacesLayout = LoadBarsFile(LoadLayout, paths.own);
            m_replacesUsage = !files.FileExists(paths.usage) || LoadBarsFile(LoadUsage, paths.usage);
            return;
        }
        m_replacesLayout = m_replacesUsage = true;
        if (hasStandard) {
            LoadLayout(*m_bars, files, paths.standard);
        } else {
            SaveLayout(*m_bars, files, paths.standard);
        }
    });
}

void frmMain::SaveToolbarLayout()
{
    GuardToLog(m_ports.reporter, Ref("frmMain.SaveToolbarLayout"), "Unable to save the layout of the toolbars.", [&] {
        const BarsFiles paths(m_ports.settings.ToolbarDirectory());
        if (paths.isKept && m_replacesLayout) {
            SaveLayout(*m_bars, m_ports.files, paths.own);
        }
        if (paths.isKept && m_replacesUsage) {
            SaveUsage(*m_bars, m_ports.files, paths.usage);
        }
    });
}

void frmMain::abViewEdit_ToolClick(const std::string& tool)
{
    if (const EditorTool* row = FindEffect(tool)) {
        Try(Ref("frmMain.abViewEdit_ToolClick"),
            "The toolbar command you clicked on (" + m_bars->Tool(tool).Caption() + ") did not work properly.",
            [&] { row->effect(*this); });
    }
}

void frmMain::abViewEdit_Band(const std::string& band, bool isOpen)
{
    Try(isOpen ? Ref("frmMain.abViewEdit_BandOpen") : Ref("frmMain.abViewEdit_BandClose"),
        isOpen ? "An error occurred while updating the toolbar" : "An error occurred while updating the toolbar.", [&] {
            if (band == "bndToolbox") {
                m_bars->Tool("miToolbox").Set(&BarTool::Checked, isOpen);
            } else if (band == "bndObjProps") {
                m_bars->Tool("miToolProps").Set(&BarTool::Checked, isOpen);
            }
        });
}

void frmMain::ToggleBand(std::string_view tool, std::string_view band)
{
    // The checked state follows from the band's own event.
    m_bars->BandOf(band).Set(&Band::Visible, !m_bars->Tool(tool).Checked());
    m_bars->RecalcLayout();
}

void frmMain::ShowCustomize()
{
    m_ports.forms.ShowModal(std::make_unique<frmCustomize>(*m_bars, m_builtInLayout));
}

void frmMain::ShowOptions()
{
    m_ports.forms.ShowModal(std::make_unique<frmOptions>(
        frmOptions::Ports{m_ports.settings, m_ports.help, m_ports.screen, m_ports.reporter, m_grid}));
}

void frmMain::ShowContents()
{
    m_ports.help.ShowContents(m_ports.settings.HelpFile());
}

void frmMain::ShowAbout()
{
    m_ports.forms.ShowModal(
        std::make_unique<frmAbout>(frmAbout::Ports{m_ports.forms, m_ports.boxes, m_ports.systemInfo}));
}

} // namespace quor
