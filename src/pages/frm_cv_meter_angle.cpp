#include "pages/frm_cv_meter_angle.h"

namespace quor {

namespace {
using E = clsMtrAngle;
constexpr double wholeCircle = 360; // degrees
} // namespace

frmCVMeterAngle::frmCVMeterAngle(PageHost& host) : ScaleMeterPage("frmCVMeterAngle", host)
{
    ArcRows();
    GroundRows();
    DisplayRows();
    PointerRows();
    // Without clrBG: it keeps what it showed until "Transparent" changes.
    ReadOrder({"cboBorderStyle",  "txtRange",         "txtStartDeg",    "txtRadius",       "txtOffsetX",
               "txtOffsetY",      "clrFont",          "txtFont",        "txtBandWidth",    "txtHubSize",
               "clrHub",          "cboPointerStyle",  "txtPointerSize", "txtPointerLen",   "clrPointer",
               "txtLabelMargin",  "chkBakColorDef",   "chkTransparent", "chkShowTickVals", "chkReverseScale",
               "chkShowInnerArc", "chkShowOutterArc", "chkShowHub"});
    ArrangeLines();
}

void frmCVMeterAngle::ArcRows()
{
    NumberRow("txtRange", "Range:", "(degrees)", 0, wholeCircle, &E::MtrRange);
    NumberRow("txtStartDeg", "Start:", "(degrees)", 0, wholeCircle, &E::MtrStart);
    NumberRow("txtRadius", "Radius:", "(pixels)", 0, mostPixels, &E::MtrRadius);
    PixelRow("txtOffsetX", "Offset X:", &E::MtrOffsetX);
    PixelRow("txtOffsetY", "Offset Y:", &E::MtrOffsetY);
}

void frmCVMeterAngle::DisplayRows()
{
    FrameLine("fraDisplay", "Meter Display");
    NumberRows(&E::LabelMargin);
    CheckRow("chkShowInnerArc", "Show Inside Radius", &E::ShowInnerArc);
    CheckRow("chkShowOutterArc", "Show Outside Radius", &E::ShowOuterArc); // spelled so from the beginning
    CheckRow("chkReverseScale", "Reverse Scale", &E::ReverseScale);
    PixelRow("txtBandWidth", "Band Width:", &E::BandWidth);
}

void frmCVMeterAngle::PointerRows()
{
    FrameLine("fraPointer", "Pointer");
    ListRow("cboPointerStyle", "Pointer Style:", {"Arrow with Line", "Arrow", "Line", "Triangle"}, &E::PointerStyle);
    PixelRow("txtPointerSize", "Pointer Size:", &E::PointerSize);
    PixelRow("txtPointerLen", "Pointer Len:", &E::PointerLength);
    ColorRow("clrPointer", "cmdBrwsPointerColor", "Pointer Color:", &E::PointerColor);
    const std::vector<std::string> hubControls = {"txtHubSize", "cmdBrwsHubColor"};
    CheckRow("chkShowHub", "Show Hub", &E::MtrHubVisible, [this, hubControls](bool isShown) {
        EnableAll(hubControls, isShown);
        ShowColor("clrHub", !isShown, &E::MtrHubColor);
    });
    PixelRow("txtHubSize", "Hub Size:", &E::MtrHubSize);
    ColorRow("clrHub", "cmdBrwsHubColor", "Hub Color:", &E::MtrHubColor);
    EnableAll(hubControls, false); // the box begins off
}

} // namespace quor
