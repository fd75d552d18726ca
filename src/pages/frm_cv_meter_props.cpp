#include "pages/frm_cv_meter_props.h"

#include "base/text.h"
#include "pages/page_measures.h"

namespace quor {

namespace {

using E = ScaleMeter;
using namespace page_measures;

constexpr double mostPosition = 99'999;
constexpr double mostEnd = 999'999'999'999'999;
constexpr int decimals = 6;

constexpr int endsAt = 212; // pixels

std::string Indexed(std::string_view name, int index)
{
    return std::string(name) + "(" + std::to_string(index) + ")";
}

} // namespace

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

} // namespace quor
