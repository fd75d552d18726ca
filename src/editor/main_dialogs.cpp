// The dialogs and the help behind the bars.

#include "editor/frm_customize.h"
#include "editor/main_form.h"
#include "platform/forms.h"
#include "platform/help.h"
#include "platform/settings.h"
#include "support/frm_about.h"
#include "support/frm_options.h"

namespace quor {

void frmMain::ShowCustomize()
{
    m_ports.forms.ShowModal(std::make_unique<frmCustomize>(*m_bars, m_builtInLayout));
}

void frmMain::ShowOptions()
{
    m_ports.forms.ShowModal(std::make_unique<frmOptions>(
        frmOptions::Ports{m_ports.settings, m_ports.help, m_ports.screen, m_ports.reporter, *this}));
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
