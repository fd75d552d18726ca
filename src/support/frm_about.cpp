#include "support/frm_about.h"

#include "base/guard.h"
#include "base/values.h"
#include "platform/boxes.h"
#include "platform/forms.h"
#include "platform/system_info.h"
#include "support/error_report.h"
#include "support/frm_system_info.h"

namespace quor {

frmAbout::frmAbout(const Ports& ports) : Form("frmAbout"), m_ports(ports)
{
    cmdOK.Set(&Button::Default, true);
    cmdOK.Set(&Button::Cancel, true);
    Place();
    m_onSysInfo = cmdSysInfo.Click.Subscribe(Quietly([this] { StartSysInfo(); }));
    m_onOk = cmdOK.Click.Subscribe(Quietly([this] { Unload(); }));
}

void frmAbout::Place()
{
    constexpr int margin = 24;
    constexpr int texts = 108;
    Set(&Form::Width, 460 * twipsPerPixelX);
    Set(&Form::Height, 274 * twipsPerPixelY);
    Arrange(margin,
            {{.y = 24, .height = 64, .items = {{.control = &Image1, .x = margin, .width = 64}}},
             {.y = 28, .height = 24, .items = {{.control = &lblTitle, .x = texts, .width = LayoutItem::filling}}},
             {.y = 54, .height = 20, .items = {{.control = &lblVersion, .x = texts, .width = LayoutItem::filling}}},
             {.y = 78, .height = 20, .items = {{.control = &lblDescription, .x = texts, .width = LayoutItem::filling}}},
             {.y = 112, .height = 98, .items = {{.control = &SSPanel1, .x = margin, .width = LayoutItem::filling}}},
             {.y = 120, .height = 80, .items = {{.control = &lblSupport, .x = 40, .width = 380}}},
             {.y = 226,
              .height = 28,
              .items = {{.control = &cmdSysInfo, .x = margin, .width = 112},
                        {.control = &cmdFiles, .width = 104},
                        {.control = &cmdOK, .width = 80, .atRight = true}}}});
}

void frmAbout::Form_Load()
{
    Set(&Form::Caption, "About " + std::string(appTitle));
    lblVersion.Set(&Label::Caption, "Version " + GetVersionText());
    lblTitle.Set(&Label::Caption, std::string(appTitle));
    lblSupport.Set(&Label::Caption, "For technical support, contact Norvane:\n"
                                    "Email: support@norvane.example\n"
                                    "Phone: +1 555 0100\n"
                                    "Web: www.norvane.example");
}

void frmAbout::StartSysInfo()
{
    std::vector<SystemFact> facts;
    IgnoreFailure([&] { facts = m_ports.systemInfo.Facts(); });
    if (facts.empty()) {
        m_ports.boxes.Show("System Information Is Unavailable At This Time", {}, BoxButtons::Ok);
    } else {
        m_ports.forms.ShowModal(std::make_unique<frmSystemInfo>(facts));
    }
}

} // namespace quor
