#include "support/frm_view_pbar.h"

#include "base/guard.h"
#include "base/values.h"
#include "platform/forms.h"

namespace quor {

frmViewPBar::frmViewPBar(Forms& forms, const Trace& trace) : Form("frmViewPBar"), m_forms(forms), m_trace(trace)
{
    Set(&Form::Caption, "Custom View Editor");
    Set(&Form::ControlBox, false);
    Set(&Form::Width, 360 * twipsPerPixelX);
    Set(&Form::Height, 72 * twipsPerPixelY);
    Arrange(20, {{.y = 14, .height = 22, .items = {{.control = &lblStatus, .x = 20, .width = LayoutItem::filling}}},
                 {.y = 44, .height = 8, .items = {{.control = &pbrConfig, .x = 20, .width = LayoutItem::filling}}}});
}

void frmViewPBar::Form_Load()
{
    pbrConfig.Value(0);
}

void frmViewPBar::Begin(const std::string& caption, std::int16_t maximum, bool isShown)
{
    Load();
    InitPBar(caption, maximum);
    if (isShown) {
        m_forms.Show(*this);
    }
}

void frmViewPBar::InitPBar(const std::string& caption, std::int16_t maximum) noexcept
{
    IgnoreFailure([&] { lblStatus.Set(&Label::Caption, caption); });
    IgnoreFailure([&] { pbrConfig.Maximum(maximum); });
}

void frmViewPBar::IncrProgBar() noexcept
{
    if (pbrConfig.Value() < pbrConfig.Maximum()) {
        IgnoreFailure([&] { pbrConfig.Value(pbrConfig.Value() + 1); });
    }
    m_trace.Steps(pbrConfig.Value());
    IgnoreFailure([&] { m_forms.RunEvents(); });
}

void frmViewPBar::SetProgBar(std::int32_t value) noexcept
{
    IgnoreFailure([&] { pbrConfig.Value(value); });
}

void frmViewPBar::CloseMe() noexcept
{
    IgnoreFailure([&] { Unload(); });
}

} // namespace quor
