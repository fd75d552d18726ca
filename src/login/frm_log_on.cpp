#include "login/frm_log_on.h"

#include "base/guard.h"

#include <algorithm>

namespace quor {

namespace {
constexpr int firstPause = 1000; // milliseconds
constexpr int longestPause = 60'000;
} // namespace

frmLogOn::frmLogOn(Timers& timers, int& failures, Check check)
    : Form("frmLogOn"), m_failures(failures), m_check(std::move(check)), tmrPause(timers.Make())
{
    Set(&Form::Caption, "Log On");
    txtPassword.Set(&TextBox::Masked, true);
    cmdOK.Set(&Button::Default, true);
    cmdCancel.Set(&Button::Cancel, true);
    Place();
    m_subscriptions.push_back(cmdOK.Click.Subscribe(Quietly([this] { cmdOK_Click(); })));
    m_subscriptions.push_back(cmdCancel.Click.Subscribe(Quietly([this] { Unload(); })));
    m_subscriptions.push_back(tmrPause->Fired.Subscribe([this] { EndPause(); }));
    if (m_failures > 0) { // a new dialog is no way around the pause
        BeginPause({});
    }
}

int frmLogOn::PauseAfter(int failures) noexcept
{
    constexpr int mostDoublings = 6;
    return std::min(firstPause << std::clamp(failures - 1, 0, mostDoublings), longestPause);
}

void frmLogOn::Place()
{
    constexpr int margin = 20;
    constexpr int fields = 100;
    Set(&Form::Width, 420 * twipsPerPixelX);
    Set(&Form::Height, 152 * twipsPerPixelY);
    Arrange(margin,
            {{.y = 16,
              .height = 28,
              .items = {{.control = &lblUser, .x = margin},
                        {.control = &txtUser, .x = fields, .width = LayoutItem::filling}}},
             {.y = 48,
              .height = 28,
              .items = {{.control = &lblPassword, .x = margin},
                        {.control = &txtPassword, .x = fields, .width = LayoutItem::filling}}},
             {.y = 80, .height = 22, .items = {{.control = &lblMessage, .x = margin, .width = LayoutItem::filling}}},
             {.y = 110,
              .height = 28,
              .items = {{.control = &cmdOK, .width = 80, .atRight = true},
                        {.control = &cmdCancel, .width = 80, .atRight = true}}}});
}

void frmLogOn::cmdOK_Click()
{
    const std::string password = txtPassword.Text();
    txtPassword.Text("");
    if (m_check(txtUser.Text(), password)) {
        m_failures = 0;
        Unload();
        return;
    }
    ++m_failures;
    txtPassword.Focus(); // the button loses it, and is to hand it to no other button
    BeginPause("The user or the password is not right.");
}

void frmLogOn::BeginPause(std::string said)
{
    const int pause = PauseAfter(m_failures);
    const std::string wait = "Wait " + std::to_string(pause / 1000) + (pause == firstPause ? " second." : " seconds.");
    lblMessage.Set(&Label::Caption, said.empty() ? wait : said + ' ' + wait);
    m_said = std::move(said);
    cmdOK.Set(&Control::Enabled, false);
    tmrPause->SetInterval(pause);
    tmrPause->SetEnabled(true);
}

void frmLogOn::EndPause()
{
    tmrPause->SetEnabled(false);
    lblMessage.Set(&Label::Caption, m_said);
    cmdOK.Set(&Control::Enabled, true);
}

} // namespace quor
