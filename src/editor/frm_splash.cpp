#include "editor/frm_splash.h"

#include "base/guard.h"
#include "platform/boxes.h"
#include "platform/login.h"
#include "platform/screen.h"
#include "platform/timer.h"

namespace quor {

namespace {
constexpr int splashDelay = 100; // milliseconds, so that the form paints first
constexpr int abortDelay = 10;
} // namespace

frmSplash::frmSplash(const EditorPorts& ports, std::function<void()> openMain)
    : Form("frmSplash"), m_ports(ports), m_openMain(std::move(openMain)), tmrSplash(ports.timers.Make()),
      tmrAbort(ports.timers.Make()), lblSplash(Make<Label>("lblSplash", "", LabelRole::Heading))
{
    Set(&Form::Caption, std::string(appTitle));
    Set(&Form::Width, 360 * twipsPerPixelX);
    Set(&Form::Height, 160 * twipsPerPixelY);
    Set(&Form::ControlBox, false);
    Image& icon = Make<Image>("imgSplash", "application");
    Arrange(20, {{.y = 32, .height = 48, .items = {{.control = &icon, .width = 48, .height = 48}}},
                 {.y = 100, .height = 24, .items = {{.control = &lblSplash, .width = LayoutItem::filling}}}});
    tmrSplash->SetInterval(splashDelay);
    tmrAbort->SetInterval(abortDelay);
    m_subscriptions.push_back(tmrSplash->Fired.Subscribe([this] { tmrSplash_Timer(); }));
    m_subscriptions.push_back(tmrAbort->Fired.Subscribe([this] { tmrAbort_Timer(); }));
}

frmSplash::~frmSplash() = default;

void frmSplash::Form_Load()
{
    Guard(m_ports.reporter, Ref("frmSplash.Form_Load"), "Unable to " + std::string(appTitle) + ".", [&] {
        m_onLogOn = m_ports.login.LogOn.Subscribe([this](bool success) { m_Login_LogOn(success); });
        lblSplash.Set(&Label::Caption, "Loading " + std::string(appTitle) + "...");
        m_ports.screen.SetMousePointer(MousePointer::Hourglass);
        tmrSplash->SetEnabled(true);
    });
}

void frmSplash::tmrSplash_Timer()
{
    Guard(m_ports.reporter, Ref("frmSplash.tmrSplash"), "Unable to load " + std::string(appTitle) + ".", [&] {
        tmrSplash->SetEnabled(false);
        if (m_ports.login.IsLoggedOn()) {
            OpenMainOrRefuse();
        } else {
            m_ports.login.ShowLogOn(true);
        }
    });
}

void frmSplash::m_Login_LogOn(bool success)
{
    Guard(m_ports.reporter, Ref("frmSplash.m_Login_LogOn"), "Unable to load " + std::string(appTitle) + ".", [&] {
        if (success) {
            OpenMainOrRefuse();
        } else {
            StopListening();
            Unload();
        }
    });
}

void frmSplash::OpenMainOrRefuse()
{
    const bool mayEdit = m_ports.login.HasPrivilege(rights::editViews);
    StopListening();
    if (!mayEdit) {
        tmrAbort->SetEnabled(true);
        return;
    }
    m_openMain();
    m_ports.screen.SetMousePointer(MousePointer::Default);
    Unload();
}

// The user is known: a logon that is told later, or while the main form loads, opens no second one.
void frmSplash::StopListening()
{
    tmrSplash->SetEnabled(false);
    m_onLogOn.End();
}

void frmSplash::tmrAbort_Timer()
{
    tmrAbort->SetEnabled(false);
    m_ports.boxes.Show("You do not have sufficient user privileges to edit Custom Views.", "Insufficient Privileges",
                       BoxButtons::Ok);
    Unload();
}

} // namespace quor
