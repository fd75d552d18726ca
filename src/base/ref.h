#pragma once
// All reference numbers. A report shows "Ref# N", which tells support which procedure failed.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quor {

struct RefNumber {
    std::int32_t number = 0;
    std::string_view owner; // the form or class whose procedure bears the number
};

// Numbers run upwards from `first`, one for each name; a dash leaves a number out.
struct RefBlock {
    std::int32_t first;
    std::string_view owner;
    std::string_view procedures;
};

// clang-format off
inline constexpr RefBlock refBlocks[] = {
    {14001, "frmMain", "Form_Load Form_QueryUnload Form_Unload abViewEdit_QueryClose abViewEdit_ToolClick "
                       "abViewEdit_BandOpen abViewEdit_BandClose abViewEdit_KeyDown NewView OpenView SaveView "
                       "Widget_MouseDown Widget_MouseUp Widget_DragDrop Widget_KeyDown Handle_MouseDown Handle_MouseUp "
                       "Handle_DragDrop ssScroll_Click ssScroll_MouseDown ssScroll_MouseUp ssScroll_DragDrop "
                       "ssScroll_Scroll imgCVBackground_MouseDown imgCVBackground_MouseUp imgCVBackground_DragDrop "
                       "DropControl PositionHandles HideHandles SelectControl ReleaseControl tmrDelControl "
                       "DeleteSelected ShowGrid HideGrid AlignToGrid SizeToGrid CopyControl PasteControl "
                       "ReorderControl ShowPropertyPages HidePropertyPages LoadToolbarLayout SaveToolbarLayout"},
    {14069, "frmCVBlnDataSource", "cboDataType cboChan cboLimitType cboMacro cboSite cboUnit optTmpStatus"},
    {14076, "frmCVBlnPic", "cboAlignment cboBevelStyle cboImageAlign chkAutoCaption chkBakColorDef chkUseMask "
                           "chkWordWrap cmdBrwsBGColor cmdBrwsFont cmdBrwsFontColor cmdBrwsMaskColor "
                           "cmdBrwsOffImage cmdBrwsOnImage Form_Load txtCaptionOff txtCaptionOn txtOffImage "
                           "txtOnImage"},
    {14094, "frmCVCmdDataSource", "cboAction cboChannel cboSite cboUnit chkCtrlClick cmdBrwsViews txtCustView"},
    {14101, "frmCVCmdLED", "cboAlignment chkAutoCaption cmdBrwsFont cmdBrwsFontColor cmdBrwsLEDColor Form_Load "
                           "txtCaption"},
    {14108, "frmCVCommand", "cboImageAlign chkAutoCaption chkUseMask chkWordWrap cmdBrwsFont cmdBrwsFontColor "
                            "cmdBrwsImage cmdBrwsMaskColor Form_Load txtCaption txtImage"},
    {14119, "frmCVGeneral", "txtHeight txtWidth txtX txtY"},
    {14123, "frmCVLabel", "cboAlignment cboBorder chkBakColorDef chkTransparent chkWordWrap cmdBrwsBGColor "
                          "cmdBrwsFont cmdBrwsFontColor Form_Load txtCaption"},
    {14133, "frmCVLEDRect", "cboAlignment cboBevelStyle chkAutoCaption chkAutoOffColor chkReflection chkWordWrap "
                            "cmdBrwsFont cmdBrwsFontOff cmdBrwsFontOn cmdBrwsOffColor cmdBrwsOnColor Form_Load "
                            "txtCaptionOff txtCaptionOn"},
    {14147, "frmCVLEDRound", "cboBevelStyle chkAutoOffColor chkReflection cmdBrwsOffColor cmdBrwsOnColor Form_Load"},
    {14153, "frmCVMeterAngle", "cboBorderStyle cboPointerStyle chkBakColorDef chkReverseScale chkShowHub "
                               "chkShowInnerArc chkShowOutterArc chkShowTickVals chkTransparent cmdBrwsBGColor "
                               "cmdBrwsFont cmdBrwsFontColor cmdBrwsHubColor cmdBrwsPointerColor Form_Load "
                               "txtBandWidth txtHubSize txtLabelMargin txtOffsetX txtOffsetY txtPointerLen "
                               "txtPointerSize txtRadius txtRange txtStartDeg"},
    {14178, "frmCVMeterLinear", "cboBorderStyle chkBakColorDef chkReverseScale chkShowTickVals chkTransparent "
                                "cmdBrwsBGColor cmdBrwsFont cmdBrwsFontColor cmdBrwsPointerColor Form_Load "
                                "optLabelLoc optOrientation txtBandWidth txtLabelMargin txtPointerOffset "
                                "txtPointerSize"},
    {14194, "frmCVMeterProps", "chkAutoSetPos cmdBrwsSectionColor txtMax txtMin txtSectionEnd"},
    {14199, "frmCVMeterText", "cboAlignment cboBorder chkBakColorDef cmdBrwsBGColor cmdBrwsFont cmdBrwsFontColor "
                              "Form_Load"},
    {14206, "frmCVMtrDataSource", "cboChan cboDec cboSite cboUnit"},
    {14210, "frmCVPicture", "cboBevelStyle cboFillStyle chkBakColorDef chkUseMask cmdBrwsBGColor cmdBrwsImage "
                            "cmdBrwsMaskColor Form_Load txtImage"},
    {14219, "frmCVStatusLabel", "cboAlignment cboBorder chkAutoCaption chkBakColorDef chkTransparent chkWordWrap "
                                "cmdBrwsBGColor cmdBrwsFont cmdBrwsFontColor Form_Load txtCaptionOff txtCaptionOn"},
    {14231, "frmCVViewProps", "chkBakColorDef cmdBrwsBGColor cmdBrwsBGFile optViewBGImageStyle - txtViewCategory "
                              "txtViewName"},
    {14238, "frmOptions", "cmdApply cmdHelp cmdOK Form_Load"},
    {14242, "frmSplash", "Form_Load tmrSplash"},
    {14253, "frmSplash", "m_Login_LogOn"},
    {14244, "frmViewToolbox", "cmdTool"},
    {14246, "clsCustView", "LoadFile SaveFile"},
    {10245, "clsCustView", "m_LoadViewTimer"},
};
// clang-format on

// Calls visit(number, procedure) for each name of the block, in order, until one returns true.
template <class Visit> constexpr bool VisitBlock(const RefBlock& block, Visit visit)
{
    std::int32_t number = block.first;
    std::string_view rest = block.procedures;
    while (!rest.empty()) {
        const std::size_t blank = rest.find(' ');
        const std::string_view name = rest.substr(0, blank);
        if (name != "-" && visit(number, name)) {
            return true;
        }
        ++number;
        rest = blank == std::string_view::npos ? std::string_view() : rest.substr(blank + 1);
    }
    return false;
}

// The number of a procedure, 0 if it has none.
constexpr RefNumber FindRef(std::string_view owner, std::string_view procedure)
{
    for (const RefBlock& block : refBlocks) {
        RefNumber found{0, block.owner};
        if (block.owner == owner && VisitBlock(block, [&](std::int32_t number, std::string_view name) {
                found.number = number;
                return name == procedure;
            })) {
            return found;
        }
    }
    return {};
}

// The number of "owner.procedure"; a name that has none does not compile.
consteval RefNumber Ref(std::string_view name)
{
    const std::size_t dot = name.find('.');
    const RefNumber found = FindRef(name.substr(0, dot), name.substr(dot + 1));
    if (found.number == 0) {
        throw "a procedure without a reference number";
    }
    return found;
}

namespace detail {
constexpr std::int32_t EndOf(const RefBlock& block)
{
    std::int32_t names = 1;
    for (const char letter : block.procedures) {
        names += letter == ' ' ? 1 : 0;
    }
    return block.first + names;
}

consteval bool BlocksOverlap()
{
    for (const RefBlock& block : refBlocks) {
        for (const RefBlock& other : refBlocks) {
            if (&other != &block && block.first < EndOf(other) && other.first < EndOf(block)) {
                return true;
            }
        }
    }
    return false;
}

// Each name leads back to the number at which it stands.
consteval bool NamesAreUnique()
{
    for (const RefBlock& block : refBlocks) {
        if (VisitBlock(block, [&](std::int32_t number, std::string_view name) {
                return FindRef(block.owner, name).number != number;
            })) {
            return false;
        }
    }
    return true;
}

consteval bool MainFormKeepsItsRange()
{
    for (const RefBlock& block : refBlocks) {
        if (block.owner == "frmMain" && (block.first < 14001 || EndOf(block) > 14069)) {
            return false;
        }
    }
    return true;
}
} // namespace detail

} // namespace quor
