#include "editor/main_form.h"

#include "base/narrow.h"
#include "binding/catalog.h"
#include "binding/live.h"
#include "document/view_document.h"
#include "editor/property_panel.h"
#include "editor/tools.h"
#include "platform/forms.h"
#include "platform/settings.h"
#include "platform/timer.h"

namespace quor {

namespace {
constexpr std::int32_t startWidth = 30'000; // twips, 2000 pixels
constexpr std::int32_t startHeight = 22'500;
constexpr int deleteDelay = 10; // milliseconds
} // namespace

frmMain::frmMain(const EditorPorts& ports)
    : m_ports(ports), m_bars(MakeEditorBars()), m_builtInLayout(LayoutOf(*m_bars)), m_grid(*this, ports),
      m_mouse(*this), m_toolbox(ports.reporter, m_mouse), m_panel(std::make_unique<PropertyPanel>(*m_bars, *this)),
      m_session(*this, ports), tmrDelControl(ports.timers.Make())
{
    m_canvas.SetScrollMaxima(startWidth, startHeight);
    tmrDelControl->SetInterval(deleteDelay);
    BindEvents();
}

frmMain::~frmMain() = default;

void frmMain::BindEvents()
{
    const auto on = [this](auto& event, auto handler) {
        m_subscriptions.push_back(event.Subscribe(std::move(handler)));
    };
    on(tmrDelControl->Fired, [this] { tmrDelControl_Timer(); });
    on(m_bars->ToolClick, [this](const std::string& tool) { abViewEdit_ToolClick(tool); });
    on(m_bars->BandOpen, [this](const std::string& band) { abViewEdit_Band(band, true); });
    on(m_bars->BandClose, [this](const std::string& band) { abViewEdit_Band(band, false); });
    on(m_bars->KeyDown, [this](std::int16_t code) { KeyDown(code); });
    on(m_bars->QueryClose, [this](bool& cancel) { m_session.abViewEdit_QueryClose(cancel); });
    on(m_canvas.Scrolled, [this] { Try(Ref("frmMain.ssScroll_Scroll"), editWords, [&] { View().RepaintAll(); }); });
}

void frmMain::Form_Load(const std::string& tail)
{
    Try(Ref("frmMain.Form_Load"), "Unable to load Quor Custom View Editor.", [&] {
        m_grid.SetSize(Narrow<std::int16_t>(m_ports.settings.GridSize()));
        m_ports.live.DesignMode = true;
        m_grid.Load();
        LoadToolbarLayout();
        m_panel->BindPanels();
        m_grid.LoadSettings();
        m_bars->RecalcLayout();
        View().Set(&clsCustView::BGColor, m_canvas.BackColor());
        View().Set(&clsCustView::ViewName, "My View");
        ReleaseControl();
        ObtainCatalog();
        m_session.ReadCommandLine(tail);
    });
}

void frmMain::ObtainCatalog()
{
    Live& live = m_ports.live;
    live.LoadCustomView = [](const std::string&) {}; // a view can't be loaded into another
    if (live.CatalogHost == nullptr) {
        return;
    }
    live.Catalog = &live.CatalogHost->GetCatalog();
    live.Catalog->ReloadSites();
    TeskSiteList sites;
    live.Catalog->GetSites(sites);
}

bool frmMain::Close(CloseReason reason)
{
    if (m_unloading || !m_session.QueryUnload(reason)) {
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
    Try(Ref("frmMain.Form_Unload"), "An error occurred while closing Quor Custom View Editor.", [&] {
        tmrDelControl->SetEnabled(false);
        m_mouse.CancelDrag();
        m_selected = nullptr;
        // The view ends with the form: an operation on it may be waiting for an answer.
        m_ports.forms.UnloadAll();
    });
    Unloaded.Raise();
}

void frmMain::ShowToolPopup()
{
    Try(Ref("frmMain.Widget_MouseUp"), editWords, [&] { m_bars->PopupBand("bndToolPopup"); });
}

void frmMain::KeyDown(std::int16_t code)
{
    Try(Ref("frmMain.abViewEdit_KeyDown"), "An error occurred. The action you are trying to perform failed.", [&] {
        if (code == canvas_keys::del) {
            RequestDelete();
        } else if (code == canvas_keys::escape && (m_mouse.IsDragging() || m_mouse.IsSizing())) {
            m_mouse.CancelDrag();
        }
    });
}

} // namespace quor
