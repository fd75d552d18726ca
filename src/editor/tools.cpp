#include "editor/tools.h"

#include "document/kinds.h"
#include "editor/main_form.h"

#include <algorithm>

namespace quor {

namespace {

using enum ToolStart;

constexpr std::string_view pageCategory = "PropertyDialogs";
constexpr std::string_view panelBand = "bndObjProps";

template <std::uint8_t Type> void Insert(frmMain& main)
{
    main.InsertElement(Type);
}

// clang-format off
constexpr EditorTool toolRows[] = {
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
    {{5, "tlMeterText", "Meter (Text)", "", pageCategory}},
    {{6, "tlMeterAngle", "Meter (Angular)", "", pageCategory}},
    {{7, "tlMeterLinear", "Meter (Linear)", "", pageCategory}},
    {{8, "tlLEDRound", "LED (Round)", "", pageCategory}},
    {{9, "tlLEDRect", "LED (Rectangular)", "", pageCategory}},
    {{10, "tlStatusLabel", "Status Label", "", pageCategory}},
    {{11, "tlBlnPic", "Status Picture", "", pageCategory}},
    {{12, "tlCmdLED", "Command and LED", "", pageCategory}},
    {{13, "tlCommand", "Command", "", pageCategory}},
    {{14, "tlPicture", "Picture", "", pageCategory}},
    {{15, "tlLabel", "Label", "", pageCategory}},
    {{16, "tlMeterProps", "Positions and Colors", "", pageCategory}},
    {{17, "tlBlnDataSource", "Status Data", "", pageCategory}},
    {{18, "tlMtrDataSource", "Meter Data", "", pageCategory}},
    {{19, "tlCmdDataSource", "Action", "", pageCategory}},
    {{21, separatorTool, "", "", "Separators"}},

    {{24, "miNew", "&New", "", "File", Enabled, "Ctrl+N"}, [](frmMain& main) { main.NewView(); }},
    {{47, "miOpen", "&Open...", "Open", "File", Enabled, "Ctrl+O"}, [](frmMain& main) { main.OpenView(""); }},
    {{22, "miSave", "&Save", "", "File", Enabled, "Ctrl+S"}, [](frmMain& main) { main.SaveView(main.CurrentFile()); }},
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
    {{49, "miGrid", "&Grid", "View Grid", "View", Enabled, "Ctrl+G"}, [](frmMain& main) { main.ToggleGrid(); }},

    {{48, "miOrder", "&Order", "", "Format", Enabled, "", "bndOrder"}},
    {{57, "miAlignToGrid", "Align to &Grid", "", "Format", Disabled}, [](frmMain& main) { main.AlignToGrid(); }},
    {{58, "miSizeToGrid", "Size to Gri&d", "", "Format", Disabled}, [](frmMain& main) { main.SizeToGrid(); }},
    {{32, "miSnapToGrid", "&Snap to Grid", "", "Format", Enabled, "Ctrl+Shift+G"}, [](frmMain& main) { main.ToggleSnap(); }},
    {{31, "miBringFront", "Bring to &Front", "", "Format", Disabled, "Ctrl+Shift+F", "", KeyScope::Canvas}, [](frmMain& main) { main.ReorderControl(true); }},
    {{30, "miSendBack", "Send to &Back", "", "Format", Disabled, "Ctrl+Shift+B", "", KeyScope::Canvas}, [](frmMain& main) { main.ReorderControl(false); }},

    {{36, insertTools[0], "Text Meter", "", "Tools"}, Insert<0>},
    {{34, insertTools[1], "Angular Meter", "", "Tools"}, Insert<1>},
    {{35, insertTools[2], "Linear Meter", "", "Tools"}, Insert<2>},
    {{37, insertTools[3], "Round LED", "", "Tools"}, Insert<3>},
    {{38, insertTools[4], "Rectangular LED", "", "Tools"}, Insert<4>},
    {{41, insertTools[5], "Status Label", "", "Tools"}, Insert<5>},
    {{42, insertTools[6], "Status Picture", "", "Tools"}, Insert<6>},
    {{44, insertTools[7], "Command with LED", "", "Tools"}, Insert<7>},
    {{43, insertTools[8], "Command Button", "", "Tools"}, Insert<8>},
    {{40, insertTools[9], "Picture", "", "Tools"}, Insert<9>},
    {{39, insertTools[10], "Label", "", "Tools"}, Insert<10>},

    {{60, "miCustomize", "&Customize...", "Customize", "ToolMenu"}, [](frmMain& main) { main.ShowCustomize(); }},
    {{59, "miOptions", "&Options...", "Options", "ToolMenu"}, [](frmMain& main) { main.ShowOptions(); }},
    {{27, "miContents", "Custom View &Help", "", "Help", Enabled, "F1"}, [](frmMain& main) { main.ShowContents(); }},
    {{26, "miAbout", "&About Custom View Editor", "", "Help"}, [](frmMain& main) { main.ShowAbout(); }},
};

constexpr BandRow bandRows[] = {
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
    {"ctlMeterText", "Meter (Text)", "tlMeterText", BandKind::Child, panelBand},
    {"ctlMeterAngle", "Meter (Angular)", "tlMeterAngle", BandKind::Child, panelBand},
    {"ctlMeterLinear", "Meter (Linear)", "tlMeterLinear", BandKind::Child, panelBand},
    {"ctlLEDRound", "LED (Round)", "tlLEDRound", BandKind::Child, panelBand},
    {"ctlLEDRect", "LED (Rectangular)", "tlLEDRect", BandKind::Child, panelBand},
    {"ctlStatusLabel", "Status Label", "tlStatusLabel", BandKind::Child, panelBand},
    {"ctlBlnPic", "Status Picture", "tlBlnPic", BandKind::Child, panelBand},
    {"ctlCmdLED", "Command and LED", "tlCmdLED", BandKind::Child, panelBand},
    {"ctlCommand", "Command", "tlCommand", BandKind::Child, panelBand},
    {"ctlPicture", "Picture", "tlPicture", BandKind::Child, panelBand},
    {"ctlLabel", "Label", "tlLabel", BandKind::Child, panelBand},
    {"prpMeterProps", "Positions and Colors", "tlMeterProps", BandKind::Child, panelBand},
    {"prpBlnDataSource", "Status Data", "tlBlnDataSource", BandKind::Child, panelBand},
    {"prpMtrDataSource", "Meter Data", "tlMtrDataSource", BandKind::Child, panelBand},
    {"prpCmdDataSource", "Action", "tlCmdDataSource", BandKind::Child, panelBand},
};
// clang-format on

constexpr BarTables<EditorTool> tables{toolRows, bandRows};

} // namespace

const BarTables<EditorTool>& EditorBars() noexcept
{
    return tables;
}

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
