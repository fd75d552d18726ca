#include "editor/frm_options.h"

#include "base/guard.h"
#include "base/narrow.h"
#include "editor/view_grid.h"
#include "platform/help.h"
#include "platform/screen.h"
#include "platform/settings.h"

namespace quor {

frmOptions::frmOptions(const Ports& ports) : Form("frmOptions"), m_ports(ports)
{
    Set(&Form::Caption, "Options");
    cmdOK.Set(&Button::Default, true);
    cmdCancel.Set(&Button::Cancel, true);
    Place();
    OnButtons();
}

void frmOptions::Place()
{
    constexpr int width = 400;
    constexpr int button = 72;
    Set(&Form::Width, width * twipsPerPixelX);
    Set(&Form::Height, 208 * twipsPerPixelY);
    Arrange(20, {{.y = 10, .height = 26, .items = {{.control = &tabOptions, .x = 12}}},
                 {.y = 44, .height = 109, .items = {{.control = &panOptions, .x = 0, .width = width}}},
                 {.y = 58,
                  .height = 30,
                  .items = {{.control = &lblOptions, .x = 20}, {.control = &txtGridSize, .x = 116, .width = 80}}},
                 {.y = 164,
                  .height = 28,
                  .items = {{.control = &cmdHelp, .x = 20, .width = 64},
                            {.control = &cmdOK, .width = button, .atRight = true},
                            {.control = &cmdCancel, .width = button, .atRight = true},
                            {.control = &cmdApply, .width = button, .atRight = true}}}});
}

void frmOptions::OnButtons()
{
    const auto on = [this](Button& button, RefNumber ref, std::string_view words, auto body) {
        m_subscriptions.push_back(
            button.Click.Subscribe([this, ref, words, body] { Guard(m_ports.reporter, ref, words, body); }));
    };
    on(cmdApply, Ref("frmOptions.cmdApply"),
       "Unable to apply changes. Your settings have not been saved. Please try again.", [this] { ApplySettings(); });
    on(cmdOK, Ref("frmOptions.cmdOK"),
       "Unable to save your changes. Your settings have not been saved. Please try again.", [this] {
           ApplySettings();
           Unload();
       });
    on(cmdHelp, Ref("frmOptions.cmdHelp"), "Unable to display the help file.",
       [this] { m_ports.help.ShowContents(m_ports.settings.HelpFile()); });
    m_subscriptions.push_back(cmdCancel.Click.Subscribe(Quietly([this] { Unload(); })));
}

void frmOptions::Form_Load()
{
    Guard(m_ports.reporter, Ref("frmOptions.Form_Load"), "Unable to load the Options dialog.",
          [this] { txtGridSize.Value(m_ports.settings.GridSize()); });
}

void frmOptions::ApplySettings()
{
    ViewGrid& grid = m_ports.grid;
    m_ports.screen.SetMousePointer(MousePointer::Hourglass);
    m_ports.settings.SetGridSize(Narrow<std::int32_t>(txtGridSize.Value()));
    if (txtGridSize.Value() != grid.Size()) {
        grid.SetSize(Narrow<std::int16_t>(txtGridSize.Value()));
        // Hidden lines keep their old pitch until the next start, while snapping takes the new one at once.
        if (grid.IsShown()) {
            grid.Show(false);
            grid.Load();
            grid.Show(true);
        }
    }
    m_ports.screen.SetMousePointer(MousePointer::Default);
}

} // namespace quor
