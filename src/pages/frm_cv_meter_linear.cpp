#include "pages/frm_cv_meter_linear.h"

namespace quor {

frmCVMeterLinear::frmCVMeterLinear(PageHost& host) : ScaleMeterPage("frmCVMeterLinear", host)
{
    using E = clsMtrLinear;
    FrameLine("fraOrientation", "Orientation");
    OptionRow("optOrientation", {"Vertical", "Horizontal"}, &E::MeterOrientation, [this] { TakeTurnedSize(); });
    GroundRows();
    FrameLine("fraPointer", "Pointer");
    ColorRow("clrPointer", "cmdBrwsPointerColor", "Color:", &E::PointerColor);
    PixelRow("txtPointerSize", "Size:", &E::PointerSize);
    PixelRow("txtPointerOffset", "Offset:", &E::PointerOffset);
    FrameLine("fraDisplay", "Meter Display");
    NumberRows(&E::TickLabelMargin);
    OptionRow("optLabelLoc", {"Bottom / Right", "Top / Left"}, &E::TickLocation);
    Enable("optLabelLoc", false);
    numberControls.emplace_back("optLabelLoc");
    CheckRow("chkReverseScale", "Reverse Scale", &E::ReverseScale);
    PixelRow("txtBandWidth", "Band Width:", &E::BandWidth);
    ReadOrder({"optOrientation", "cboBorderStyle", "clrFont", "txtFont", "txtBandWidth", "txtPointerSize",
               "txtPointerOffset", "clrPointer", "txtLabelMargin", "optLabelLoc", "clrBG", "chkBakColorDef",
               "chkTransparent", "chkShowTickVals", "chkReverseScale"});
    ArrangeLines();
}

void frmCVMeterLinear::TakeTurnedSize()
{
    const Widget& widget = *TheOwner().MyControl();
    if (const Widget* selected = m_host.SelectedWidget()) {
        m_host.PositionHandles(*selected);
    }
    Write(&Element::ObjWidth, widget.Width());
    Write(&Element::ObjHeight, widget.Height());
}

} // namespace quor
