// The main form from its load to its unload.

#include "base/guard.h"
#include "base/narrow.h"
#include "base/text.h"
#include "binding/catalog.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "editor/tools.h"
#include "platform/forms.h"
#include "platform/settings.h"
#include "platform/timer.h"

namespace quor {

namespace {

constexpr std::string_view openPrefix = "/Open ";
constexpr std::int32_t startWidth = 30'000; // twips, 2000 pixels
constexpr std::int32_t startHeight = 22'500;
constexpr int deleteDelay = 10; // milliseconds

std::string TitleWords(std::string_view before, std::string_view after)
{
    return std::string(before) + std::string(appTitle) + std::string(after);
}

} // namespace

frmMain::frmMain(const EditorPorts& ports)
    : m_ports(ports), m_bars(MakeEditorBars()), m_builtInLayout(LayoutOf(*m_bars)),
      m_toolbox(std::make_unique<frmViewToolbox>(ports.reporter, *this)), tmrDelControl(ports.timers.Make())
{
    AddWidgetArrays(m_canvas);
    m_canvas.SetTracer(*m_ports.live.Tracer);
    m_view = MakeView();
    m_panel = std::make_unique<PropertyPanel>(*m_bars, *this);
    m_canvas.SetScrollMaxima(startWidth, startHeight);
    tmrDelControl->SetInterval(deleteDelay);
    m_subscriptions.push_back(tmrDelControl->Fired.Subscribe([this] { tmrDelControl_Timer(); }));
    BindBars();
    m_subscriptions.push_back(m_canvas.Scrolled.Subscribe([this] { ssScroll_Scroll(); }));
}

frmMain::~frmMain()
{
    IgnoreFailure([&] { m_view.reset(); });
    m_ports.live.LoadCustomView = nullptr;
}

void frmMain::Form_Load(const std::string& tail)
{
    Guard(m_ports.reporter, Ref("frmMain.Form_Load"), TitleWords("Unable to load ", "."), [&] {
        m_skipSavePrompt = false;
        m_closeState = CloseState::Undecided;
        if (m_unloading) {
            return;
        }
        m_gridSize = Narrow<std::int16_t>(m_ports.settings.GridSize());
        m_ports.live.DesignMode = true;
        LoadGrid();
        LoadToolbarLayout();
        m_bars->Set(&Bars::ClientArea, "ssScroll");
        m_panel->BindPanels();
        LoadSettings();
        m_bars->RecalcLayout();
        m_view->Set(&clsCustView::BGColor, m_canvas.BackColor());
        m_view->Set(&clsCustView::ViewName, "My View");
        ReleaseControl();
        ObtainCatalog();
        ReadCommandLine(tail);
    });
}

void frmMain::ObtainCatalog()
{
    Live& live = m_ports.live;
    live.LoadCustomView = [this](const std::string& name) { LoadCustomView(name); };
    if (live.CatalogHost == nullptr) {
        return;
    }
    live.Catalog = &live.CatalogHost->GetCatalog();
    live.Catalog->ReloadSites();
    TeskSiteList sites;
    live.Catalog->GetSites(sites);
}

void frmMain::LoadSettings()
{
    const bool showGrid = m_ports.settings.ShowGrid();
    if (showGrid) {
        ShowGrid();
    } else {
        HideGrid();
    }
    m_bars->Tool("miGrid").Set(&BarTool::Checked, showGrid);
    m_snapToGrid = m_ports.settings.SnapToGrid();
    m_bars->Tool("miSnapToGrid").Set(&BarTool::Checked, m_snapToGrid);
}

void frmMain::ReadCommandLine(const std::string& tail)
{
    if (CharacterCount(tail) <= openPrefix.size()) {
        m_savedChecksum = GetCurrentChecksum();
        return;
    }
    m_skipSavePrompt = true;
    // Whatever the first six characters are, and however many bytes they take.
    OpenView(tail.substr(FitField(tail, openPrefix.size()).size()));
}

std::unique_ptr<clsCustView> frmMain::MakeView()
{
    return std::make_unique<clsCustView>(ViewPorts{m_ports.files, m_ports.boxes, m_ports.reporter, m_ports.timers,
                                                   m_ports.pictures, m_ports.progress, m_ports.live},
                                         m_canvas);
}

bool frmMain::QueryUnload(CloseReason reason)
{
    bool agrees = true;
    Guard(m_ports.reporter, Ref("frmMain.Form_QueryUnload"),
          TitleWords("Unable to determine if your file has changed. ", " will now shut down."), [&] {
              if (reason == CloseReason::System || reason == CloseReason::TaskManager) {
                  return;
              }
              if (m_closeState == CloseState::Undecided) {
                  agrees = QuerySave();
              } else {
                  agrees = m_closeState == CloseState::Agreed;
              }
          });
    return agrees;
}

void frmMain::abViewEdit_QueryClose(bool& cancel)
{
    Guard(m_ports.reporter, Ref("frmMain.abViewEdit_QueryClose"),
          TitleWords("Unable to determine if your file has changed. ", " will now shut down."), [&] {
              const bool agrees = QuerySave();
              m_closeState = agrees ? CloseState::Agreed : CloseState::Refused;
              cancel = !agrees;
          });
}

bool frmMain::Close(CloseReason reason)
{
    if (m_unloading || !QueryUnload(reason)) {
        return false;
    }
    if (!m_unloading) { // the session may have ended while the question was open
        Form_Unload();
    }
    return true;
}

bool frmMain::CloseThroughBar()
{
    return m_bars->AskClose() && Close(CloseReason::User);
}

void frmMain::Form_Unload()
{
    m_unloading = true;
    SaveToolbarLayout();
    Guard(m_ports.reporter, Ref("frmMain.Form_Unload"), TitleWords("An error occurred while closing ", "."), [&] {
        tmrDelControl->SetEnabled(false);
        CancelDrag();
        m_selected = nullptr;
        // The view ends with the form: an operation on it may be waiting for an answer.
        m_ports.forms.UnloadAll();
    });
    Unloaded.Raise();
}

void frmMain::LoadCustomView(const std::string& /*name*/) {}

} // namespace quor
