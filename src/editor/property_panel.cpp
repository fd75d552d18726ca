#include "editor/property_panel.h"

#include "base/guard.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "elements/scale_meter.h"
#include "forms/bars.h"
#include "pages/data/data_pages.h"
#include "pages/page.h"
#include "pages/pages.h"

#include <algorithm>

namespace quor {

namespace {

constexpr std::string_view panelBand = "bndObjProps";

constexpr std::unique_ptr<Page> (*pageMakers[])(PageHost&) = {
    NewViewPropsPage,     NewMeterTextPage,   NewMeterAnglePage, NewMeterLinearPage,   NewLEDRoundPage,
    NewLEDRectPage,       NewStatusLabelPage, NewBlnPicPage,     NewCmdLEDPage,        NewCommandPage,
    NewPicturePage,       NewLabelPage,       NewMeterPropsPage, NewBlnDataSourcePage, NewMtrDataSourcePage,
    NewCmdDataSourcePage, NewGeneralPage,
};

constexpr std::string_view viewPage = "frmCVViewProps";
constexpr std::string_view generalPage = "frmCVGeneral";

std::string PageNameOf(std::string_view array)
{
    return "frmCV" + std::string(array.substr(3));
}

std::string ToolOf(const Page& page)
{
    return "tl" + page.Name().substr(5);
}

// What an element shows beside its own tab, the general one and the action, and the pages that are bound to it behind
// the general one and its own.
struct DataPages {
    std::string_view tabs;
    std::string_view pages;
};

DataPages DataPagesOf(Element& element)
{
    if (dynamic_cast<ScaleMeter*>(&element) != nullptr) {
        return {"prpMtrDataSource prpMeterProps", "frmCVMtrDataSource frmCVCmdDataSource frmCVMeterProps"};
    }
    if (element.MeterSource() != nullptr) {
        return {"prpMtrDataSource", "frmCVMtrDataSource frmCVCmdDataSource"};
    }
    if (element.StatusSource() != nullptr) {
        return {"prpBlnDataSource", "frmCVCmdDataSource frmCVBlnDataSource"};
    }
    return {"", "frmCVCmdDataSource"};
}

} // namespace

PropertyPanel::PropertyPanel(Bars& bars, PageHost& host) : m_bars(bars), m_host(host) {}

void PropertyPanel::BindPanels()
{
    for (const auto& make : pageMakers) {
        m_pages.push_back(make(m_host));
        m_pages.back()->Load();
        m_bars.Tool(ToolOf(*m_pages.back())).Set(&BarTool::HostedForm, m_pages.back().get());
    }
}

PropertyPanel::~PropertyPanel()
{
    for (const std::unique_ptr<Page>& page : m_pages) {
        IgnoreFailure([&] { m_bars.Tool(ToolOf(*page)).Set(&BarTool::HostedForm, nullptr); });
    }
}

void PropertyPanel::HidePropertyPages()
{
    Guard(m_host.PageReporter(), Ref("frmMain.HidePropertyPages"),
          "Unable to hide the property dialog for the selected control.", [&] {
              for (Band* child : m_bars.BandOf(panelBand).Children()) {
                  child->Set(&Band::Visible, false);
              }
          });
}

void PropertyPanel::ShowPropertyPages(std::string_view name, Element* element, bool reload)
{
    HidePropertyPages();
    ShowTabs(name);
    const bool isView = name == viewBand;
    if (!isView) {
        ShowTabs("prpCmdDataSource prpGeneral");
    }
    m_bars.BandOf(panelBand).SetCurrentChild(isView ? viewBand : generalBand);
    Clear(generalPage);
    if (reload) {
        for (const KindNames& kind : kindNames) {
            Clear(PageNameOf(kind.array));
        }
        Clear("frmCVCmdDataSource frmCVMtrDataSource frmCVBlnDataSource frmCVMeterProps");
    }
    if (element != nullptr) {
        ShowTabs(DataPagesOf(*element).tabs);
    }
    m_host.PageLive().Tracer->SetsTabs(m_bars.BandOf(panelBand));
    if (element != nullptr) {
        Bind(generalPage, *element, name);
        if (reload) {
            Bind(PageNameOf(name), *element, name);
            Bind(DataPagesOf(*element).pages, *element, name);
        }
    } else if (Page* page = FindPage(viewPage); page != nullptr && reload) {
        m_host.PageLive().Tracer->Calls("SetProps", page->Name(), {});
        page->SetProps();
    }
    m_bars.RecalcLayout();
}

void PropertyPanel::ShowTabs(std::string_view names)
{
    while (!names.empty()) {
        Band& band = m_bars.BandOf(panelBand).Child(TakeName(names));
        // A page that doesn't exist has no tab.
        band.Set(&Band::Visible, band.Tools().front().Tool().HostedForm() != nullptr);
    }
}

void PropertyPanel::Clear(std::string_view pages)
{
    while (!pages.empty()) {
        if (Page* page = FindPage(TakeName(pages))) {
            m_host.PageLive().Tracer->Calls("ClearOwner", page->Name(), {});
            page->ClearOwner();
        }
    }
}

void PropertyPanel::Bind(std::string_view pages, Element& element, std::string_view array)
{
    while (!pages.empty()) {
        if (Page* page = FindPage(TakeName(pages))) {
            m_host.PageLive().Tracer->Calls("SetOwner", page->Name(), element.ObjName());
            page->SetOwner(element, array);
        }
    }
}

Page* PropertyPanel::FindPage(std::string_view name) const
{
    const auto found =
        std::find_if(m_pages.begin(), m_pages.end(), [&](const auto& page) { return page->Name() == name; });
    return found == m_pages.end() ? nullptr : found->get();
}

} // namespace quor
