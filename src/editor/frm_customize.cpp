#include "editor/frm_customize.h"

#include "base/guard.h"
#include "base/values.h"
#include "forms/bars.h"
#include "forms/caption.h"

#include <algorithm>

namespace quor {

frmCustomize::frmCustomize(Bars& bars, BarsLayout builtIn)
    : Form("frmCustomize"), m_bars(bars), m_builtIn(std::move(builtIn)), m_layout(LayoutOf(bars))
{
    Set(&Form::Caption, "Customize");
    cmdOK.Set(&Button::Default, true);
    cmdCancel.Set(&Button::Cancel, true);
    for (const BandLayout& band : m_layout) {
        m_bands.push_back(
            &Make<CheckBox>("chkBar(" + std::to_string(m_bands.size()) + ")", bars.BandOf(band.band).Caption));
    }
    Place();
    OnControls();
    Fill();
}

void frmCustomize::Place()
{
    constexpr int list = 212;
    constexpr int middle = 244;
    constexpr int button = 92;
    constexpr int right = 348;
    Set(&Form::Width, 580 * twipsPerPixelX);
    Set(&Form::Height, 400 * twipsPerPixelY);
    std::vector<LayoutLine> lines{
        {.y = 12, .height = 28, .items = {{.control = &lblTools, .x = 20}, {.control = &lblToolbar, .x = right}}},
        {.y = 40, .height = 240, .items = {{.control = &lstTools, .x = 20, .width = list}}},
    };
    int top = 80;
    for (Button* between : {&cmdAdd, &cmdRemove, &cmdUp, &cmdDown}) {
        lines.push_back({.y = top, .height = 28, .items = {{.control = between, .x = middle, .width = button}}});
        top += between == &cmdRemove ? 52 : 36;
    }
    lines.push_back({.y = 40, .height = 240, .items = {{.control = &lstToolbar, .x = right, .width = list}}});
    LayoutLine bars{.y = 292, .height = 28, .items = {{.control = &lblBars, .x = 20}}};
    for (CheckBox* box : m_bands) {
        bars.items.push_back({.control = box, .gap = 20});
    }
    lines.push_back(std::move(bars));
    lines.push_back({.y = 335, .height = 1, .items = {{.control = &divider, .x = 0, .width = 580}}});
    lines.push_back({.y = 352,
                     .height = 28,
                     .items = {{.control = &cmdReset, .x = 20, .width = 80},
                               {.control = &cmdOK, .width = 80, .atRight = true},
                               {.control = &cmdCancel, .width = 80, .atRight = true}}});
    Arrange(20, std::move(lines));
}

void frmCustomize::OnControls()
{
    const auto on = [this](Event<>& event, auto body) {
        m_subscriptions.push_back(event.Subscribe(Quietly(std::move(body))));
    };
    on(lstTools.Click, [this] { FollowSelection(); });
    on(lstToolbar.Click, [this] { FollowSelection(); });
    on(lstTools.DblClick, [this] { Add(); });
    on(lstToolbar.DblClick, [this] { Remove(); });
    on(cmdAdd.Click, [this] { Add(); });
    on(cmdRemove.Click, [this] { Remove(); });
    on(cmdUp.Click, [this] { Move(-1); });
    on(cmdDown.Click, [this] { Move(1); });
    on(cmdOK.Click, [this] { Accept(); });
    on(cmdCancel.Click, [this] { Unload(); });
    on(cmdReset.Click, [this] {
        m_layout = m_builtIn;
        Fill();
    });
    for (std::size_t index = 0; index < m_bands.size(); ++index) {
        on(m_bands[index]->Click, [this, index] { m_layout[index].isVisible = m_bands[index]->Value(); });
    }
}

std::vector<std::string>& frmCustomize::ToolbarTools()
{
    const auto toolbar = std::find_if(m_layout.begin(), m_layout.end(), [this](const BandLayout& band) {
        return m_bars.BandOf(band.band).Kind == BandKind::ToolBar;
    });
    return toolbar->tools;
}

RowList::Row frmCustomize::RowOf(const std::string& tool) const
{
    return tool == separatorTool ? RowList::Row{"Separator", ""}
                                 : RowList::Row{PlainCaption(m_bars.Tool(tool).Caption()), tool};
}

// Brings the controls in line with the layout.
void frmCustomize::Fill()
{
    const std::vector<std::string>& tools = ToolbarTools();
    m_available = {std::string(separatorTool)};
    for (const BarTool* command : m_bars.Commands()) {
        if (std::find(tools.begin(), tools.end(), command->Name) == tools.end()) {
            m_available.push_back(command->Name);
        }
    }
    const auto show = [this](RowList& list, const std::vector<std::string>& names) {
        std::vector<RowList::Row> rows;
        for (const std::string& name : names) {
            rows.push_back(RowOf(name));
        }
        list.SetRows(std::move(rows));
    };
    show(lstTools, m_available);
    show(lstToolbar, tools);
    for (std::size_t index = 0; index < m_bands.size(); ++index) {
        m_bands[index]->Value(m_layout[index].isVisible);
    }
    FollowSelection();
}

void frmCustomize::FollowSelection()
{
    const std::int32_t chosen = lstToolbar.Index();
    cmdAdd.Set(&Button::Enabled, lstTools.Index() >= 0);
    cmdRemove.Set(&Button::Enabled, chosen >= 0);
    cmdUp.Set(&Button::Enabled, chosen > 0);
    cmdDown.Set(&Button::Enabled, chosen >= 0 && chosen + 1 < std::ssize(lstToolbar.Rows()));
}

// Behind the chosen row of the toolbar; at its end if none is chosen.
void frmCustomize::Add()
{
    if (lstTools.Index() < 0) {
        return;
    }
    std::vector<std::string>& tools = ToolbarTools();
    const std::int32_t at = lstToolbar.Index() < 0 ? static_cast<std::int32_t>(tools.size()) : lstToolbar.Index() + 1;
    tools.insert(tools.begin() + at, m_available[static_cast<std::size_t>(lstTools.Index())]);
    Fill();
    lstToolbar.Index(at);
}

void frmCustomize::Remove()
{
    if (lstToolbar.Index() >= 0) {
        std::vector<std::string>& tools = ToolbarTools();
        tools.erase(tools.begin() + lstToolbar.Index());
        Fill();
    }
}

void frmCustomize::Move(std::int32_t distance)
{
    std::vector<std::string>& tools = ToolbarTools();
    const std::int32_t from = lstToolbar.Index();
    const std::int32_t to = from + distance;
    if (from >= 0 && to >= 0 && to < std::ssize(tools)) {
        std::swap(tools[static_cast<std::size_t>(from)], tools[static_cast<std::size_t>(to)]);
        Fill();
        lstToolbar.Index(to);
    }
}

void frmCustomize::Accept()
{
    ApplyLayout(m_bars, m_layout);
    m_bars.RecalcLayout();
    Unload();
}

} // namespace quor
