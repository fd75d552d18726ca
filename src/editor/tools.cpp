#include "editor/tools.h"

#include "document/kinds.h"
#include "editor/main_form.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quor {

namespace {

using enum ToolStart;

constexpr std::string_view pageCategory = "PropertyDialogs";
constexpr std::string_view panelBand = "bndObjProps";
constexpr int firstPageTool = 5; // the numbers of the others follow

// The parts of a table as one.
template <class Row, std::size_t... Sizes> consteval auto Joined(const std::array<Row, Sizes>&... parts)
{
    std::array<Row, (Sizes + ...)> rows{};
    auto place = rows.begin();
    ((place = std::copy(parts.begin(), parts.end(), place)), ...);
    return rows;
}

// clang-format off
constexpr auto firstTools = std::to_array<EditorTool>({
    {{1, "miFile", "&File", "", "Menus", Enabled, "", "bndFile"}},
    {{45, "miEdit", "&Edit", "", "Menus", Enabled, "", "bndEdit"}},
    {{50, "miView", "&View", "", "Menus", Enabled, "", "bndView"}},
    {{56, "miFormat", "F&ormat", "", "Menus", Enabled, "", "bndFormat"}},
    {{61, "miTools", "&Tools", "", "Menus", Enabled, "", "bndTools"}},
    {{46, "miHelp", "&Help", "", "Menus", Enabled, "", "bndHelp"}},
    {{2, "tlToolbox", "Toolbox", "", "Panels"}},
    {{3, "lblSelectedControl", "", "", "Panels"}},
    {{20, "tlGeneral", "General", "", pageCategory}},
    {{4, "tlViewProps", "Custom View Settings", "", pageCategory}},
});
constexpr auto middleTools = std::to_array<EditorTool>({
    {{16, "tlMeterProps", "Positions and Colors", "", pageCategory}},
    {{17, "tlBlnDataSource", "Status Data", "", pageCategory}},
    {{18, "tlMtrDataSource", "Meter Data", "", pageCategory}},
    {{19, "tlCmdDataSource", "Action", "", pageCategory}},
    {{21, separatorTool, "", "", "Separators"}},

    {{24, "miNew", "&New", "", "File", Enabled, "Ctrl+N"}, [](frmMain& main) { main.NewView(); }},
    {{47, "miOpen", "&Open...", "Open", "File", Enabled, "Ctrl+O"}, [](frmMain& main) { main.OpenView(""); }},
    {{22, "miSave", "&Save", "", "File", Enabled, "Ctrl+S"}, [](frmMain& main) { main.SaveView(main.Session().CurrentFile()); }},
    {{23, "miSaveAs", "Save &As...", "Save As", "File", Enabled, "Ctrl+Shift+S"}, [](frmMain& main) { main.SaveView(""); }},
    {{25, "miExit", "E&xit", "", "File", Enabled, "Ctrl+Q"}, [](frmMain& main) { main.Close(CloseReason::Code); }},

    {{53, "miCut", "Cu&t", "", "Edit", Disabled, "Ctrl+X", "", KeyScope::Canvas}, [](frmMain& main) { main.CopyControl(); main.RequestDelete(); }},
    {{54, "miCopy", "&Copy", "", "Edit", Disabled, "Ctrl+C", "", KeyScope::Canvas}, [](frmMain& main) { main.CopyControl(); }},
    {{55, "miPaste", "&Paste", "", "Edit", Disabled, "Ctrl+V", "", KeyScope::Canvas}, [](frmMain& main) { main.PasteControl(); }},
    {{33, "miInsert", "&Insert", "", "Edit", Enabled, "", "bndInsert"}},
    {{28, "miDelete", "&Delete", "", "Edit", Disabled, "Del", "", KeyScope::Canvas}, [](frmMain& main) { main.RequestDelete(); }},
    {{29, "miClear", "C&lear All", "", "Edit"}, [](frmMain& main) { main.ClearView(); }},

    {{52, "miToolbox", "&Toolbox", "View Toolbox", "View", Checked}, [](frmMain& main) { main.ToggleBand("miToolbox", "bndToolbox"); }},
    {{51, "miToolProps", "Tool &Properties", "View Tool Properties", "View", Checked}, [](frmMain& main) { main.ToggleBand("miToolProps", "bndObjProps"); }},
    {{49, "miGrid", "&Grid", "View Grid", "View", Enabled, "Ctrl+G"}, [](frmMain& main) { main.Grid().Toggle(); }},

    {{48, "miOrder", "&Order", "", "Format", Enabled, "", "bndOrder"}},
    {{57, "miAlignToGrid", "Align to &Grid", "", "Format", Disabled}, [](frmMain& main) { main.AlignToGrid(); }},
    {{58, "miSizeToGrid", "Size to Gri&d", "", "Format", Disabled}, [](frmMain& main) { main.SizeToGrid(); }},
    {{32, "miSnapToGrid", "&Snap to Grid", "", "Format", Enabled, "Ctrl+Shift+G"}, [](frmMain& main) { main.Grid().ToggleSnap(); }},
    {{31, "miBringFront", "Bring to &Front", "", "Format", Disabled, "Ctrl+Shift+F", "", KeyScope::Canvas}, [](frmMain& main) { main.ReorderControl(true); }},
    {{30, "miSendBack", "Send to &Back", "", "Format", Disabled, "Ctrl+Shift+B", "", KeyScope::Canvas}, [](frmMain& main) { main.ReorderControl(false); }},
});
constexpr auto lastTools = std::to_array<EditorTool>({
    {{60, "miCustomize", "&Customize...", "Customize", "ToolMenu"}, [](frmMain& main) { main.ShowCustomize(); }},
    {{59, "miOptions", "&Options...", "Options", "ToolMenu"}, [](frmMain& main) { main.ShowOptions(); }},
    {{27, "miContents", "Custom View &Help", "", "Help", Enabled, "F1"}, [](frmMain& main) { main.ShowContents(); }},
    {{26, "miAbout", "&About Custom View Editor", "", "Help"}, [](frmMain& main) { main.ShowAbout(); }},
});

constexpr auto firstBands = std::to_array<BandRow>({
    {"bndMenu", "Main Menu", "miFile miEdit miView miFormat miTools miHelp", BandKind::MenuBar},
    {"bndFile", "&File", "miNew miOpen tlSep miSave miSaveAs tlSep miExit"},
    {"bndEdit", "Edit", "miCut miCopy miPaste tlSep miInsert tlSep miDelete miClear"},
    {"bndView", "View", "miToolbox miToolProps tlSep miGrid"},
    {"bndFormat", "Format", "miOrder tlSep miAlignToGrid miSizeToGrid tlSep miSnapToGrid"},
    {"bndTools", "Tools", "miCustomize miOptions"},
    {"bndHelp", "Help", "miContents tlSep miAbout"},
    {"bndInsert", "Insert", "miMtrText miMtrAngle miMtrLinear tlSep miLEDRound miLEDRect miStatLabel miStatPic tlSep "
                            "miCmdLED miCommand tlSep miPic miLabel"},
    {"bndOrder", "Order", "miBringFront miSendBack"},
    {"bndToolBar", "Toolbar", "miNew miOpen miSave tlSep miCut miCopy miPaste miDelete tlSep miBringFront miSendBack tlSep "
                              "miToolbox miToolProps miGrid tlSep miContents", BandKind::ToolBar},
    {"bndToolPopup", "Tool Popup", "miCut miCopy miPaste tlSep miInsert tlSep miBringFront miSendBack tlSep "
                                   "miAlignToGrid miSizeToGrid tlSep miClear miDelete", BandKind::Popup},
    {"bndToolbox", "Toolbox", "tlToolbox", BandKind::Panel},
    {"bndStatus", "Status Bar", "lblSelectedControl", BandKind::StatusBar},
    {panelBand, "Properties", "", BandKind::Panel},
    {"prpGeneral", "General", "tlGeneral", BandKind::Child, panelBand},
    {"prpViewProps", "Custom View Settings", "tlViewProps", BandKind::Child, panelBand},
});
constexpr auto lastBands = std::to_array<BandRow>({
    {"prpMeterProps", "Positions and Colors", "tlMeterProps", BandKind::Child, panelBand},
    {"prpBlnDataSource", "Status Data", "tlBlnDataSource", BandKind::Child, panelBand},
    {"prpMtrDataSource", "Meter Data", "tlMtrDataSource", BandKind::Child, panelBand},
    {"prpCmdDataSource", "Action", "tlCmdDataSource", BandKind::Child, panelBand},
});
// clang-format on

// Of the kinds: the tools that host their pages, those that insert an element, and the tabs.
constexpr std::string_view PageTool(std::size_t type)
{
    return kindNames[type].array.substr(1);
}

template <std::size_t... Type> consteval auto PageTools(std::index_sequence<Type...>)
{
    return std::array{
        EditorTool{{firstPageTool + int{Type}, PageTool(Type), kindNames[Type].caption, "", pageCategory}}...};
}

template <std::size_t Type> void Insert(frmMain& main)
{
    main.InsertElement(Type);
}

template <std::size_t... Type> consteval auto InsertTools(std::index_sequence<Type...>)
{
    return std::array{EditorTool{
        {kindNames[Type].toolId, kindNames[Type].tool, kindNames[Type].toolCaption, "", "Tools"}, Insert<Type>}...};
}

template <std::size_t... Type> consteval auto PageTabs(std::index_sequence<Type...>)
{
    return std::array{
        BandRow{kindNames[Type].array, kindNames[Type].caption, PageTool(Type), BandKind::Child, panelBand}...};
}

constexpr std::make_index_sequence<kindCount> types;
constexpr auto toolRows = Joined(firstTools, PageTools(types), middleTools, InsertTools(types), lastTools);
constexpr auto bandRows = Joined(firstBands, PageTabs(types), lastBands);
constexpr BarTables<EditorTool> tables{toolRows, bandRows};

} // namespace

const EditorTool* FindEffect(std::string_view tool) noexcept
{
    const auto found = std::find_if(tables.tools.begin(), tables.tools.end(),
                                    [&](const EditorTool& row) { return row.name == tool && row.effect != nullptr; });
    return found == tables.tools.end() ? nullptr : &*found;
}

std::unique_ptr<Bars> MakeEditorBars()
{
    auto bars = std::make_unique<Bars>(tables);
    bars->BandOf("bndToolPopup").Tool("miPaste").SetTip("Pate");
    for (const char* band : {"bndOrder", "bndToolBar", "bndToolPopup"}) {
        bars->BandOf(band).Tool("miBringFront").SetCategory("Edit");
        bars->BandOf(band).Tool("miSendBack").SetCategory("Edit");
    }
    return bars;
}

} // namespace quor
