#include "support/frm_system_info.h"

#include "base/guard.h"
#include "base/values.h"
#include "platform/system_info.h"

namespace quor {

frmSystemInfo::frmSystemInfo(const std::vector<SystemFact>& facts) : Form("frmSystemInfo")
{
    constexpr int margin = 20;
    constexpr int pitch = 30;
    Set(&Form::Caption, "System Information");
    Set(&Form::Width, 400 * twipsPerPixelX);
    std::vector<LayoutLine> lines;
    int top = 16;
    for (const SystemFact& fact : facts) {
        const std::string index = '(' + std::to_string(lines.size()) + ')';
        auto& label = Make<Label>("lblFact" + index, fact.label + ':', LabelRole::Caption);
        auto& value = Make<TextBox>("txtFact" + index);
        value.Set(&TextBox::ReadOnly, true);
        value.Text(fact.value);
        lines.push_back(
            {.y = top,
             .height = pitch,
             .items = {{.control = &label, .x = margin}, {.control = &value, .x = 124, .width = LayoutItem::filling}}});
        top += pitch;
    }
    lines.push_back({.y = top + 16, .height = 28, .items = {{.control = &cmdOK, .width = 80, .atRight = true}}});
    Arrange(margin, std::move(lines));
    cmdOK.Set(&Button::Default, true);
    cmdOK.Set(&Button::Cancel, true);
    m_onOk = cmdOK.Click.Subscribe(Quietly([this] { Unload(); }));
}

} // namespace quor
