// The pages of the meters.

#include "base/text.h"
#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/mtr_linear.h"
#include "pages/page.h"
#include "pages/page_measures.h"
#include "pages/pages.h"

namespace quor {

namespace {

// The rows that both meters with a scale have: for the ground and for the numbers at the scale.
template <class E> class ScaleMeterPage : public ElementPage<E> {
protected:
    using ElementPage<E>::ElementPage;

    static constexpr double mostPixels = 10'000;

    // What depends on the box "Show Values".
    std::vector<std::string> numberControls = {"cmdBrwsFontColor", "cmdBrwsFont", "txtFont", "txtLabelMargin"};

    template <class O, class S> void PixelRow(std::string_view name, std::string_view caption, S O::*setting)
    {
        this->NumberRow(name, caption, "(pixels)", -mostPixels, mostPixels, setting);
    }

    void GroundRows()
    {
        this->CheckRow("chkTransparent", "Transparent", &E::BGTransparent, [this](bool isTransparent) {
            this->Enable("cmdBrwsBGColor", !isTransparent); // on "Use Default", too
            this->Enable("cboBorderStyle", !isTransparent);
            ShowColor("clrBG", isTransparent, &E::BGColor);
        });
        this->DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        this->ListRow("cboBorderStyle", "Border Style:", {"None", "Raised", "Lowered"}, &E::BorderStyle);
    }

    // The box "Show Values" and the rows that depend on it.
    template <class O, class S> void NumberRows(S O::*spacing)
    {
        this->CheckRow("chkShowTickVals", "Show Values", &E::TickVals, [this](bool areShown) {
            this->EnableAll(numberControls, areShown);
            ShowColor("clrFont", !areShown, &E::TickLabelColor);
        });
        this->FontRow("txtFont", "cmdBrwsFont", &E::TickLabelFont, "clrFont", &E::TickLabelColor);
        this->ColorRow("clrFont", "cmdBrwsFontColor", "Font Color:", &E::TickLabelColor);
        PixelRow("txtLabelMargin", "Spacing:", spacing);
        this->EnableAll(numberControls, false); // the box begins off
    }

    // The swatch shows the setting, or the button face while it has no say.
    template <class O, class S> void ShowColor(std::string_view swatch, bool isOff, S O::*setting)
    {
        this->template On<Swatch>(swatch).Set(&Swatch::BackColor, isOff ? colors::buttonFace : this->Value(setting));
    }
};

class frmCVMeterText final : public ElementPage<clsMeterText> {
public:
    explicit frmCVMeterText(PageHost& host) : ElementPage("frmCVMeterText", host)
    {
        using E = clsMeterText;
        DefaultColorRow("clrBG", "cmdBrwsBGColor", "chkBakColorDef", "Back Color:", &E::BGColor);
        FontRow("txtFont", "cmdBrwsFont", &E::Font, "clrFont", &E::FontColor);
        ColorRow("clrFont", "cmdBrwsFontColor", "Font Color:", &E::FontColor);
        ListRow("cboAlignment", "Alignment:", {"Center", "Left Justify", "Right Justify"}, &E::FontAlignment);
        ListRow("cboBorder", "Border:", {"None", "Raised", "Lowered"}, &E::BorderStyle);
        ReadOrder({"clrBG", "txtFont", "clrFont", "cboAlignment", "cboBorder", "chkBakColorDef"});
        ArrangeLines();
    }
};

constexpr double wholeCircle = 360; // degrees

class frmCVMeterAngle final : public ScaleMeterPage<clsMtrAngle> {
public:
    explicit frmCVMeterAngle(PageHost& host);

private:
    using E = clsMtrAngle;

    void ArcRows();
    void DisplayRows();
    void PointerRows();
};

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

class frmCVMeterLinear final : public ScaleMeterPage<clsMtrLinear> {
public:
    explicit frmCVMeterLinear(PageHost& host);

private:
    void TakeTurnedSize();
};

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

using namespace page_measures;

constexpr double mostPosition = 99'999;
constexpr double mostEnd = 999'999'999'999'999;
constexpr int decimals = 6;

constexpr int endsAt = 212; // pixels

std::string Indexed(std::string_view name, int index)
{
    return std::string(name) + "(" + std::to_string(index) + ")";
}

// The limits and sections of all meters with a scale.
class frmCVMeterProps final : public ElementPage<ScaleMeter> {
public:
    explicit frmCVMeterProps(PageHost& host);

private:
    using E = ScaleMeter;

    void ScaleRows();
    template <class S> NumberField& EndField(int index, S E::*setting);
    template <class C> void SectionRow(int number, C E::*color, Control& end);
};

frmCVMeterProps::frmCVMeterProps(PageHost& host) : ElementPage("frmCVMeterProps", host)
{
    ScaleRows();
    FrameLine("fraSections", "Sections");
    Line("", {{.control = &CaptionOf("Color:"), .x = controlsAt}, {.control = &CaptionOf("Ends at:"), .x = endsAt}});
    SectionRow(1, &E::SectionColor1, EndField(0, &E::SectionEnd1));
    SectionRow(2, &E::SectionColor2, EndField(1, &E::SectionEnd2));
    SectionRow(3, &E::SectionColor3, EndField(2, &E::SectionEnd3));
    SectionRow(4, &E::SectionColor4, EndField(3, &E::SectionEnd4));
    // The fifth section ends where the scale ends.
    auto& lastEnd = Make<TextBox>("txtLastEndVal");
    lastEnd.Set(&TextBox::ReadOnly, true);
    Read("txtLastEndVal", [this, &lastEnd] { lastEnd.Text(Decimal(Value(&E::PosMax))); });
    SectionRow(5, &E::SectionColor5, lastEnd);
    ReadOrder({"clrSection(0)", "clrSection(1)", "clrSection(2)", "clrSection(3)", "clrSection(4)", "txtSectionEnd(0)",
               "txtSectionEnd(1)", "txtSectionEnd(2)", "txtSectionEnd(3)", "txtMin", "txtMax", "txtLastEndVal",
               "chkAutoSetPos"});
    ArrangeLines();
}

void frmCVMeterProps::ScaleRows()
{
    CheckRow("chkAutoSetPos", "Set positions automatically", &E::AutoPositions, [this](bool isAutomatic) {
        EnableAll({"txtSectionEnd(0)", "txtSectionEnd(1)", "txtSectionEnd(2)", "txtSectionEnd(3)", "txtMin", "txtMax"},
                  !isAutomatic);
    });
    NumberRow("txtMin", "Min:", "", -mostPosition, mostPosition, &E::PosMin, decimals);
    NumberRow("txtMax", "Max:", "", -mostPosition, mostPosition, &E::PosMax, decimals,
              [this] { On<TextBox>("txtLastEndVal").Text(Decimal(On<NumberField>("txtMax").Value())); });
}

template <class S> NumberField& frmCVMeterProps::EndField(int index, S E::*setting)
{
    const std::string name = Indexed("txtSectionEnd", index);
    auto& field = Make<NumberField>(name, -mostEnd, mostEnd, decimals);
    NumberOn(field, name, setting);
    return field;
}

template <class C> void frmCVMeterProps::SectionRow(int number, C E::*color, Control& end)
{
    const std::string name = Indexed("clrSection", number - 1);
    const std::string button = Indexed("cmdBrwsSectionColor", number - 1);
    auto& swatch = Make<Swatch>(name);
    auto& browse = Make<Button>(button, "...");
    Line("Section " + std::to_string(number) + ":",
         {{.control = &swatch, .x = controlsAt, .width = swatchWidth},
          {.control = &browse, .width = browseWidth, .height = fieldHeight, .gap = browseGap},
          {.control = &end, .x = endsAt, .width = LayoutItem::filling}});
    ColorOn(swatch, name, button, color);
}

} // namespace

std::unique_ptr<Page> NewMeterTextPage(PageHost& host)
{
    return std::make_unique<frmCVMeterText>(host);
}

std::unique_ptr<Page> NewMeterAnglePage(PageHost& host)
{
    return std::make_unique<frmCVMeterAngle>(host);
}

std::unique_ptr<Page> NewMeterLinearPage(PageHost& host)
{
    return std::make_unique<frmCVMeterLinear>(host);
}

std::unique_ptr<Page> NewMeterPropsPage(PageHost& host)
{
    return std::make_unique<frmCVMeterProps>(host);
}

} // namespace quor
