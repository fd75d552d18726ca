#include "editor/application.h"

#include "editor/frm_splash.h"
#include "editor/main_form.h"
#include "platform/forms.h"

namespace quor {

Application::Application(const EditorPorts& ports, std::string tail) : m_ports(ports), m_tail(std::move(tail)) {}

Application::~Application() = default;

void Application::Start()
{
    m_splash = std::make_unique<frmSplash>(m_ports, [this] { OpenMainForm(); });
    m_splashUnloaded = m_splash->Unloaded.Subscribe([this] {
        m_splashIsGone = true;
        EndUnlessFormsAreLeft();
    });
    m_splash->Load();
    m_ports.forms.Show(*m_splash);
}

void Application::OpenMainForm()
{
    m_main = std::make_unique<frmMain>(m_ports);
    m_mainUnloaded = m_main->Unloaded.Subscribe([this] { EndUnlessFormsAreLeft(); });
    m_main->Form_Load(m_tail);
    if (!m_main->IsUnloading()) { // the session may have ended during the load
        MainFormShown.Raise(*m_main);
    }
}

void Application::EndUnlessFormsAreLeft()
{
    const bool mainIsGone = m_main == nullptr || m_main->IsUnloading();
    if (m_splashIsGone && mainIsGone && !m_hasEnded) {
        m_hasEnded = true;
        Ended.Raise();
    }
}

} // namespace quor
