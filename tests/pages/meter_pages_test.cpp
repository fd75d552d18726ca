#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/mtr_linear.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/widget_journal.h"

namespace quor {
namespace {

// What a user gives a control, and what the widget shows then; a button asks for a colour or a font.
struct Row {
    const char* control;
    const char* input;
    const char* shown;
};

const Row textRows[] = {
    {"cmdBrwsBGColor", "1193046", "BackGroundColor=1193046"},
    {"cmdBrwsFont", "Arial", "Font=Arial"},
    {"cmdBrwsFontColor", "255", "FontColor=255"},
    {"cboAlignment", "1", "Alignment=1"},
    {"cboBorder", "1", "BorderStyle=1"},
    {"chkBakColorDef", "1", "BackGroundColor=-2147483633"},
};

const Row angleRows[] = {
    {"txtRange", "100", "ArcRangeDegrees=100"},
    {"txtStartDeg", "101", "ArcStartDegrees=101"},
    {"txtRadius", "50", "ArcRadius=50"},
    {"txtOffsetX", "-4", "OffsetX=-4"},
    {"txtOffsetY", "-5", "OffsetY=-5"},
    {"cmdBrwsBGColor", "1193046", "BackGroundColor=1193046"},
    {"chkBakColorDef", "1", "BackGroundColor=-2147483633"},
    {"cboBorderStyle", "1", "BorderStyle=1"},
    {"cmdBrwsFont", "Arial", "TickLabelFont=Arial"},
    {"cmdBrwsFontColor", "255", "TickLabelColorValue=255"},
    {"txtLabelMargin", "-6", "TickLabelMargin=-6"},
    {"chkShowInnerArc", "1", "ShowInnerArcRadius=true"},
    {"chkShowOutterArc", "0", "ShowOuterArcRadius=false"},
    {"chkReverseScale", "1", "ReverseScaleFlag=true"},
    {"txtBandWidth", "7", "SectionBandWidth=7"},
    {"cboPointerStyle", "3", "PointerStyleCode=3"},
    {"txtPointerSize", "8", "PointerSize=8"},
    {"txtPointerLen", "30", "PointerMargin=20"},
    {"cmdBrwsPointerColor", "254", "PointerColor=254"},
    {"chkShowHub", "1", "ShowHub=true"},
    {"txtHubSize", "11", "HubSize=11"},
    {"cmdBrwsHubColor", "253", "HubColor=253"},
    {"chkShowTickVals", "0", "TickValuesVisible=false"},
    {"chkTransparent", "1", "Transparent=true"},
};

const Row linearRows[] = {
    {"optOrientation", "0", "Orientation=0"},
    {"cmdBrwsBGColor", "1193046", "BackGroundColor=1193046"},
    {"cboBorderStyle", "1", "BorderStyle=1"},
    {"cmdBrwsPointerColor", "254", "PointerColor=254"},
    {"txtPointerSize", "8", "PointerSize=8"},
    {"txtPointerOffset", "-3", "PointerOffset=-3"},
    {"cmdBrwsFont", "Arial", "TickLabelFont=Arial"},
    {"cmdBrwsFontColor", "255", "TickLabelColorValue=255"},
    {"txtLabelMargin", "-6", "TickLabelMargin=-6"},
    {"optLabelLoc", "1", "TickLocation=1"},
    {"chkReverseScale", "1", "ReverseScaleFlag=true"},
    {"txtBandWidth", "7", "SectionBandWidth=7"},
    {"chkBakColorDef", "1", "BackGroundColor=-2147483633"},
    {"chkShowTickVals", "0", "TickValuesVisible=false"},
    {"chkTransparent", "1", "Transparent=true"},
};

const Row propsRows[] = {
    {"txtMin", "-20", "PositionMin=-20"},
    {"txtMax", "120", "PositionMax=120"},
    {"txtSectionEnd(0)", "1", "SectionEnd1=1"},
    {"txtSectionEnd(1)", "2", "SectionEnd2=2"},
    {"txtSectionEnd(2)", "3", "SectionEnd3=3"},
    {"txtSectionEnd(3)", "4000", "SectionEnd4=4000"}, // beyond the scale: as typed
    {"cmdBrwsSectionColor(0)", "11", "SectionColor1=11"},
    {"cmdBrwsSectionColor(1)", "12", "SectionColor2=12"},
    {"cmdBrwsSectionColor(2)", "13", "SectionColor3=13"},
    {"cmdBrwsSectionColor(3)", "14", "SectionColor4=14"},
    {"cmdBrwsSectionColor(4)", "15", "SectionColor5=15"},
};

struct AMeterPage : EditorFixture {
    void Use(std::string_view page, const Row& row)
    {
        auto* control = &On<Control>(page, row.control);
        if (auto* box = dynamic_cast<CheckBox*>(control)) {
            EXPECT_NE(box->Value(), *row.input == '1') << row.control;
            box->Toggle();
        } else if (auto* list = dynamic_cast<ListBox*>(control)) {
            list->Choose(std::stoi(row.input));
        } else if (auto* options = dynamic_cast<OptionArray*>(control)) {
            options->Choose(std::stoi(row.input));
        } else if (auto* number = dynamic_cast<NumberField*>(control)) {
            EXPECT_TRUE(number->Type(row.input)) << row.control;
        } else if (std::string_view(row.control) == "cmdBrwsFont") {
            if (main.SelectedWidget() != nullptr) {
                dialog.WillPickFont([&](CommonDialog& common) { common.FontName = row.input; });
            }
            On<Button>(page, row.control).Push();
        } else {
            dialog.WillPickColor(Color{std::stoi(row.input)});
            On<Button>(page, row.control).Push();
        }
    }

    std::string Shown(std::string_view page, const char* name) const
    {
        const auto* control = &On<Control>(page, name);
        if (const auto* box = dynamic_cast<const CheckBox*>(control)) {
            return box->Value() ? "1" : "0";
        }
        if (const auto* list = dynamic_cast<const ListBox*>(control)) {
            return std::to_string(list->ListIndex());
        }
        if (const auto* options = dynamic_cast<const OptionArray*>(control)) {
            return std::to_string(options->Index());
        }
        if (const auto* number = dynamic_cast<const NumberField*>(control)) {
            return std::to_string(static_cast<int>(number->Value()));
        }
        return "";
    }

    static std::string PropertiesOf(const Element& element)
    {
        WidgetJournal journal;
        element.MyControl()->VisitProperties(journal);
        return " " + journal.Take();
    }

    // With a ground of its own.
    template <class E> E& InsertWhite(std::string_view page)
    {
        auto& meter = Insert<E>();
        meter.Set(&E::BGColor, Color{0x00FFFFFF});
        main.Panel().FindPage(page)->SetOwner(meter, "");
        return meter;
    }

    // Each row writes, is read back when the element is shown again, and fails under its own number.
    template <class E> void TryAll(std::string_view page, std::span<const Row> rows)
    {
        auto& first = InsertWhite<E>(page);
        for (const Row& row : rows) {
            const std::string shown = " " + std::string(row.shown) + " ";
            EXPECT_EQ(PropertiesOf(first).find(shown), std::string::npos) << row.shown;
            Use(page, row);
            EXPECT_NE(PropertiesOf(first).find(shown), std::string::npos) << row.shown;
        }
        InsertWhite<E>(page);
        Select(first);
        for (const Row& row : rows) {
            if (const std::string again = Shown(page, row.control); !again.empty()) {
                EXPECT_EQ(again, row.input) << row.control;
            }
        }
        InsertWhite<E>(page);
        main.Panel().FindPage(page)->ClearOwner();
        for (const Row& row : rows) {
            On<Control>(page, row.control).Set(&Control::Enabled, true);
            reporter.Announce(
                FindRef(page, std::string_view(row.control).substr(0, std::string(row.control).find('('))));
            Use(page, row);
            EXPECT_EQ(reporter.reports.back().message,
                      "An error occurred while setting the property value. Please try again.");
        }
    }
};

TEST_F(AMeterPage, OfTheTextMeterHoldsEachRow)
{
    TryAll<clsMeterText>("frmCVMeterText", textRows);
}

TEST_F(AMeterPage, OfTheAngularMeterHoldsEachRow)
{
    TryAll<clsMtrAngle>("frmCVMeterAngle", angleRows);
}

TEST_F(AMeterPage, OfTheLinearMeterHoldsEachRow)
{
    TryAll<clsMtrLinear>("frmCVMeterLinear", linearRows);
}

TEST_F(AMeterPage, OfPositionsAndColorsHoldsEachRow)
{
    TryAll<clsMtrLinear>("frmCVMeterProps", propsRows);
    auto& angle = Insert<clsMtrAngle>();
    EXPECT_EQ(On<TextBox>("frmCVMeterProps", "txtLastEndVal").Text(), "10000");
    On<CheckBox>("frmCVMeterProps", "chkAutoSetPos").Toggle();
    EXPECT_TRUE(angle.AutoPositions());
    main.Panel().FindPage("frmCVMeterProps")->ClearOwner();
    reporter.Announce(Ref("frmCVMeterProps.chkAutoSetPos"));
    On<CheckBox>("frmCVMeterProps", "chkAutoSetPos").Toggle();
}

} // namespace
} // namespace quor
