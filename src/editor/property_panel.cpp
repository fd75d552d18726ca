#include "editor/property_panel.h"

#include "base/guard.h"
#include "binding/live.h"
#include "forms/bars.h"
#include "pages/data/frm_cv_bln_data_source.h"
#include "pages/data/frm_cv_cmd_data_source.h"
#include "pages/data/frm_cv_mtr_data_source.h"
#include "pages/frm_cv_bln_pic.h"
#include "pages/frm_cv_cmd_led.h"
#include "pages/frm_cv_command.h"
#include "pages/frm_cv_general.h"
#include "pages/frm_cv_label.h"
#include "pages/frm_cv_led_rect.h"
#include "pages/frm_cv_led_round.h"
#include "pages/frm_cv_meter_angle.h"
#include "pages/frm_cv_meter_linear.h"
#include "pages/frm_cv_meter_props.h"
#include "pages/frm_cv_meter_text.h"
#include "pages/frm_cv_picture.h"
#include "pages/frm_cv_status_label.h"
#include "pages/frm_cv_view_props.h"

#include <algorithm>

namespace quor {

namespace {

constexpr std::string_view panelBand = "bndObjProps";

// The pages in the order in which they are made, each with its tool.
struct PanelRow {
    std::string_view tool;
    std::unique_ptr<Page> (*make)(PageHost& host);
};

template <class P> std::unique_ptr<Page> MakePage(PageHost& host)
{
    return std::make_unique<P>(host);
}

constexpr PanelRow panelRows[] = {
    {"tlViewProps", MakePage<frmCVViewProps>},
    {"tlMeterText", MakePage<frmCVMeterText>},
    {"tlMeterAngle", MakePage<frmCVMeterAngle>},
    {"tlMeterLinear", MakePage<frmCVMeterLinear>},
    {"tlLEDRound", MakePage<frmCVLEDRound>},
    {"tlLEDRect", MakePage<frmCVLEDRect>},
    {"tlStatusLabel", MakePage<frmCVStatusLabel>},
    {"tlBlnPic", MakePage<frmCVBlnPic>},
    {"tlCmdLED", MakePage<frmCVCmdLED>},
    {"tlCommand", MakePage<frmCVCommand>},
    {"tlPicture", MakePage<frmCVPicture>},
    {"tlLabel", MakePage<frmCVLabel>},
    {"tlMeterProps", MakePage<frmCVMeterProps>},
    {"tlBlnDataSource", MakePage<frmCVBlnDataSource>},
    {"tlMtrDataSource", MakePage<frmCVMtrDataSource>},
    {"tlCmdDataSource", MakePage<frmCVCmdDataSource>},
    {"tlGeneral", MakePage<frmCVGeneral>},
};

// What a kind shows beside its own tab, the general one and the action, and the pages that are bound to an element of
// it behind the general page, in their order.
struct KindPages {
    std::string_view array;
    std::string_view tabs;
    std::string_view pages;
};

constexpr KindPages kindPages[] = {
    {"ctlMeterText", "prpMtrDataSource", "frmCVMeterText frmCVMtrDataSource frmCVCmdDataSource"},
    {"ctlMeterAngle", "prpMtrDataSource prpMeterProps",
     "frmCVMeterAngle frmCVMtrDataSource frmCVCmdDataSource frmCVMeterProps"},
    {"ctlMeterLinear", "prpMtrDataSource prpMeterProps",
     "frmCVMeterLinear frmCVMtrDataSource frmCVCmdDataSource frmCVMeterProps"},
    {"ctlLEDRound", "prpBlnDataSource", "frmCVLEDRound frmCVCmdDataSource frmCVBlnDataSource"},
    {"ctlLEDRect", "prpBlnDataSource", "frmCVLEDRect frmCVCmdDataSource frmCVBlnDataSource"},
    {"ctlStatusLabel", "prpBlnDataSource", "frmCVStatusLabel frmCVCmdDataSource frmCVBlnDataSource"},
    {"ctlBlnPic", "prpBlnDataSource", "frmCVBlnPic frmCVCmdDataSource frmCVBlnDataSource"},
    {"ctlCmdLED", "prpBlnDataSource", "frmCVCmdLED frmCVCmdDataSource frmCVBlnDataSource"},
    {"ctlCommand", "", "frmCVCommand frmCVCmdDataSource"},
    {"ctlPicture", "", "frmCVPicture frmCVCmdDataSource"},
    {"ctlLabel", "", "frmCVLabel frmCVCmdDataSource"},
};

constexpr std::string_view generalPage = "frmCVGeneral";
constexpr std::string_view clearOrder =
    "frmCVMeterText frmCVMeterAngle frmCVMeterLinear frmCVLEDRound frmCVLEDRect frmCVStatusLabel frmCVBlnPic "
    "frmCVCmdLED frmCVCommand frmCVPicture frmCVLabel frmCVCmdDataSource frmCVMtrDataSource frmCVBlnDataSource "
    "frmCVMeterProps";

} // namespace

PropertyPanel::PropertyPanel(Bars& bars, PageHost& host) : m_bars(bars), m_host(host) {}

void PropertyPanel::BindPanels()
{
    for (const PanelRow& row : panelRows) {
        m_pages.push_back(row.make(m_host));
        m_pages.back()->Load();
        m_bars.Tool(row.tool).Set(&BarTool::HostedForm, m_pages.back().get());
    }
    m_viewPage = dynamic_cast<frmCVViewProps*>(FindPage("frmCVViewProps"));
}

PropertyPanel::~PropertyPanel()
{
    for (const PanelRow& row : panelRows) {
        IgnoreFailure([&] { m_bars.Tool(row.tool).Set(&BarTool::HostedForm, nullptr); });
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
        Clear(clearOrder);
    }
    const auto* row = std::find_if(std::begin(kindPages), std::end(kindPages),
                                   [&](const KindPages& kind) { return kind.array == name; });
    if (row != std::end(kindPages)) {
        ShowTabs(row->tabs);
    }
    m_host.PageLive().Tracer->SetsTabs(m_bars.BandOf(panelBand));
    if (element != nullptr) {
        Bind(generalPage, *element, name);
        if (reload && row != std::end(kindPages)) {
            Bind(row->pages, *element, name);
        }
    } else if (reload && isView && m_viewPage != nullptr) {
        m_host.PageLive().Tracer->Calls("SetProps", m_viewPage->Name(), {});
        m_viewPage->SetProps();
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
