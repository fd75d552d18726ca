// What all pages of elements have in common, row by row: what each control writes, under which number it reports, how
// far a number goes.

#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/mtr_linear.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/field_text.h"
#include "tests/support/widget_journal.h"

#include <bit>
#include <sstream>

namespace quor {
namespace {

// What the user gives a control (of a list or an option its index, of a box what it is then), the setting, or the
// widget's property where no record has the setting, and what that holds then if it reads otherwise.
struct PageRow {
    const char* control;
    std::int32_t ref;
    const char* input;
    const char* setting;
    const char* stored = nullptr;

    std::string Stored() const { return stored == nullptr ? input : stored; }
};

struct PageTable {
    const char* page;
    std::uint8_t type;
    std::vector<PageRow> rows;
};

const PageTable pages[] = {
    {"frmCVGeneral",
     clsLEDRound::type,
     {
         {"txtHeight", 14119, "20", "ObjHeight", "300.000000"},
         {"txtWidth", 14120, "30", "ObjWidth", "450.000000"},
         {"txtX", 14121, "100", "ObjLeft", "1500.000000"},
         {"txtY", 14122, "50", "ObjTop", "750.000000"},
     }},
    {"frmCVLEDRound",
     clsLEDRound::type,
     {
         {"cboBevelStyle", 14147, "1", "BevelStyle"},
         {"cmdBrwsOnColor", 14151, "11", "ColorActive"},
         {"chkAutoOffColor", 14148, "0", "AutoInactive"},
         {"cmdBrwsOffColor", 14150, "12", "ColorInactive"},
         {"chkReflection", 14149, "0", "Reflection"},
     }},
    {"frmCVLEDRect",
     clsLEDRect::type,
     {
         {"cboBevelStyle", 14134, "1", "BevelStyle"},
         {"cmdBrwsOnColor", 14143, "11", "ColorActive"},
         {"chkAutoOffColor", 14136, "0", "AutoInactive"},
         {"cmdBrwsOffColor", 14142, "12", "ColorInactive"},
         {"chkReflection", 14137, "0", "Reflection"},
         {"txtCaptionOn", 14146, "lit", "CaptionOn"},
         {"txtCaptionOff", 14145, "dark", "CaptionOff"},
         {"cmdBrwsFontOn", 14141, "13", "CaptionOnColor"},
         {"cmdBrwsFontOff", 14140, "14", "CaptionOffColor"},
         {"cmdBrwsFont", 14139, "Arial", "CaptionFont"},
         {"cboAlignment", 14133, "2", "CaptionAlignment"},
         {"chkAutoCaption", 14135, "1", "AutoCaption"},
         {"chkWordWrap", 14138, "1", "CaptionWordWrap"},
     }},
    {"frmCVStatusLabel",
     clsStatusLabel::type,
     {
         {"chkTransparent", 14223, "0", "BGTransparent"},
         {"cmdBrwsBGColor", 14225, "11", "BGColor"},
         {"chkBakColorDef", 14222, "-2147483633", "BGColor"},
         {"cboBorder", 14220, "2", "Border3D", "1"},
         {"txtCaptionOn", 14230, "lit", "CaptionOn"},
         {"txtCaptionOff", 14229, "dark", "CaptionOff"},
         {"chkAutoCaption", 14221, "1", "AutoCaption"},
         {"cmdBrwsFontColor", 14227, "12", "CaptionColor"},
         {"cmdBrwsFont", 14226, "Arial", "CaptionFont"},
         {"cboAlignment", 14219, "2", "CaptionAlignment"},
         {"chkWordWrap", 14224, "1", "CaptionWordWrap"},
     }},
    {"frmCVLabel",
     clsLabel::type,
     {
         {"chkTransparent", 14126, "0", "BGTransparent"},
         {"cmdBrwsBGColor", 14128, "11", "BGColor"},
         {"chkBakColorDef", 14125, "-2147483633", "BGColor"},
         {"cboBorder", 14124, "2", "Border3D", "1"},
         {"txtCaption", 14132, "Pump", "Caption"},
         {"cmdBrwsFontColor", 14130, "12", "CaptionColor"},
         {"cmdBrwsFont", 14129, "Arial", "CaptionFont"},
         {"cboAlignment", 14123, "1", "CaptionAlignment"},
         {"chkWordWrap", 14127, "1", "CaptionWordWrap"},
     }},
    {"frmCVBlnPic",
     clsBoolPic::type,
     {
         {"cmdBrwsBGColor", 14083, "10", "BGColor"},
         {"chkBakColorDef", 14080, "-2147483633", "BGColor"},
         {"cboBevelStyle", 14077, "1", "BevelStyle"},
         {"txtOnImage", 14093, "on.bmp", "ImageOn"},
         {"txtOffImage", 14092, "off.bmp", "ImageOff"},
         {"cmdBrwsOnImage", 14088, "off.bmp", "ImageOn"},
         {"cmdBrwsOffImage", 14087, "on.bmp", "ImageOff"},
         {"cboImageAlign", 14078, "12", "ImageAlignment"},
         {"chkUseMask", 14081, "1", "ImageUseMask"},
         {"cmdBrwsMaskColor", 14086, "11", "ImageMaskColor"},
         {"txtCaptionOn", 14091, "lit", "CaptionOn"},
         {"txtCaptionOff", 14090, "dark", "CaptionOff"},
         {"chkAutoCaption", 14079, "1", "AutoCaption"},
         {"cmdBrwsFontColor", 14085, "12", "CaptionColor"},
         {"cmdBrwsFont", 14084, "Arial", "CaptionFont"},
         {"cboAlignment", 14076, "8", "CaptionAlignment"},
         {"chkWordWrap", 14082, "1", "CaptionWordWrap"},
     }},
    {"frmCVCommand",
     clsCommand::type,
     {
         {"txtCaption", 14117, "Start", "Caption"},
         {"chkAutoCaption", 14109, "1", "AutoCaption"},
         {"cmdBrwsFontColor", 14113, "11", "CaptionColor"},
         {"cmdBrwsFont", 14112, "Arial", "CaptionFont"},
         {"chkWordWrap", 14111, "1", "CaptionWordWrap"},
         {"txtImage", 14118, "on.bmp", "ImageFile"},
         {"cmdBrwsImage", 14114, "off.bmp", "ImageFile"},
         {"cboImageAlign", 14108, "12", "ImageAlignment"},
         {"chkUseMask", 14110, "1", "ImageUseMask"},
         {"cmdBrwsMaskColor", 14115, "12", "ImageMaskColor"},
     }},
    {"frmCVCmdLED",
     clsCmdLED::type,
     {
         {"txtCaption", 14107, "Start", "Caption"},
         {"chkAutoCaption", 14102, "1", "AutoCaption"},
         {"cmdBrwsFontColor", 14104, "11", "CaptionColor"},
         {"cmdBrwsFont", 14103, "Arial", "CaptionFont"},
         {"cmdBrwsLEDColor", 14105, "12", "LEDColor"},
         {"cboAlignment", 14101, "3", "LEDAlignment"},
     }},
    {"frmCVPicture",
     clsPicture::type,
     {
         {"txtImage", 14218, "on.bmp", "PictureFile"},
         {"cmdBrwsImage", 14215, "off.bmp", "PictureFile"},
         {"cboFillStyle", 14211, "2", "PictureFillMode"},
         {"chkUseMask", 14213, "1", "PictureUseMask"},
         {"cmdBrwsMaskColor", 14216, "11", "PictureMaskColor"},
         {"cboBevelStyle", 14210, "1", "BevelStyle"},
         {"cmdBrwsBGColor", 14214, "10", "BGColor"},
         {"chkBakColorDef", 14212, "-2147483633", "BGColor"},
     }},
    {"frmCVMeterText",
     clsMeterText::type,
     {
         {"cmdBrwsBGColor", 14202, "1193046", "BGColor"},
         {"cmdBrwsFont", 14203, "Arial", "Font"},
         {"cmdBrwsFontColor", 14204, "255", "FontColor"},
         {"cboAlignment", 14199, "1", "FontAlignment"},
         {"cboBorder", 14200, "1", "BorderStyle"},
         {"chkBakColorDef", 14201, "1", "BGColor", "-2147483633"},
     }},
    {"frmCVMeterAngle",
     clsMtrAngle::type,
     {
         {"txtRange", 14176, "100", "MtrRange"},
         {"txtStartDeg", 14177, "101", "MtrStart"},
         {"txtRadius", 14175, "50", "MtrRadius"},
         {"txtOffsetX", 14171, "-4", "MtrOffsetX"},
         {"txtOffsetY", 14172, "-5", "MtrOffsetY"},
         {"cmdBrwsBGColor", 14162, "1193046", "BGColor"},
         {"chkBakColorDef", 14155, "1", "BGColor", "-2147483633"},
         {"cboBorderStyle", 14153, "1", "BorderStyle"},
         {"cmdBrwsFont", 14163, "Arial", "TickLabelFont"},
         {"cmdBrwsFontColor", 14164, "255", "TickLabelColor"},
         {"txtLabelMargin", 14170, "-6", "LabelMargin"},
         {"chkShowInnerArc", 14158, "1", "ShowInnerArc"},
         {"chkShowOutterArc", 14159, "0", "ShowOuterArc"},
         {"chkReverseScale", 14156, "1", "ReverseScale"},
         {"txtBandWidth", 14168, "7", "BandWidth"},
         {"cboPointerStyle", 14154, "3", "PointerStyle"},
         {"txtPointerSize", 14174, "8", "PointerSize"},
         {"txtPointerLen", 14173, "30", "PointerLength"},
         {"cmdBrwsPointerColor", 14166, "254", "PointerColor"},
         {"chkShowHub", 14157, "1", "MtrHubVisible"},
         {"txtHubSize", 14169, "11", "MtrHubSize"},
         {"cmdBrwsHubColor", 14165, "253", "MtrHubColor"},
         {"chkShowTickVals", 14160, "0", "TickVals"},
         {"chkTransparent", 14161, "1", "BGTransparent"},
     }},
    {"frmCVMeterLinear",
     clsMtrLinear::type,
     {
         {"optOrientation", 14189, "0", "MeterOrientation"},
         {"cmdBrwsBGColor", 14183, "1193046", "BGColor"},
         {"cboBorderStyle", 14178, "1", "BorderStyle"},
         {"cmdBrwsPointerColor", 14186, "254", "widget PointerColor"},
         {"txtPointerSize", 14193, "8", "PointerSize"},
         {"txtPointerOffset", 14192, "-3", "PointerOffset"},
         {"cmdBrwsFont", 14184, "Arial", "TickLabelFont"},
         {"cmdBrwsFontColor", 14185, "255", "TickLabelColor"},
         {"txtLabelMargin", 14191, "-6", "TickLabelMargin"},
         {"optLabelLoc", 14188, "1", "TickLocation"},
         {"chkReverseScale", 14180, "1", "ReverseScale"},
         {"txtBandWidth", 14190, "7", "BandWidth"},
         {"chkBakColorDef", 14179, "1", "BGColor", "-2147483633"},
         {"chkShowTickVals", 14181, "0", "widget TickValuesVisible", "false"},
         {"chkTransparent", 14182, "1", "BGTransparent"},
     }},
    {"frmCVMeterProps",
     clsMtrLinear::type,
     {
         {"txtMin", 14197, "-20", "PosMin", "-20.000000"},
         {"txtMax", 14196, "120", "PosMax", "120.000000"},
         {"txtSectionEnd(0)", 14198, "1", "SectionEnd1", "1.000000"},
         {"txtSectionEnd(1)", 14198, "2", "SectionEnd2", "2.000000"},
         {"txtSectionEnd(2)", 14198, "3", "SectionEnd3", "3.000000"},
         {"txtSectionEnd(3)", 14198, "4000", "SectionEnd4", "4000.000000"},
         {"cmdBrwsSectionColor(0)", 14195, "11", "SectionColor1"},
         {"cmdBrwsSectionColor(1)", 14195, "12", "SectionColor2"},
         {"cmdBrwsSectionColor(2)", 14195, "13", "SectionColor3"},
         {"cmdBrwsSectionColor(3)", 14195, "14", "SectionColor4"},
         {"cmdBrwsSectionColor(4)", 14195, "15", "SectionColor5"},
         {"chkAutoSetPos", 14194, "1", "AutoPositions"},
     }},
};

struct APage : EditorFixture {
    void SetUp() override
    {
        EditorFixture::SetUp();
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
    }

    template <class... E> static void PutGround(Element& element)
    {
        const auto put = [&]<class Each>(Each* own) {
            if (own != nullptr) {
                own->Set(&Each::BGColor, Color{5});
            }
        };
        (put(dynamic_cast<E*>(&element)), ...);
    }

    // A new element, selected, with a ground of its own.
    Element& InsertOf(std::uint8_t type)
    {
        main.InsertElement(type);
        Element& element = main.View().CollectionOf(type).Item(main.SelectedWidget()->Tag());
        main.ReleaseControl();
        PutGround<clsBoolPic, clsPicture, clsMeterText, clsMtrAngle, clsMtrLinear>(element);
        Select(element);
        return element;
    }

    static std::string_view DialogOf(std::string_view button)
    {
        return button == "cmdBrwsFont" ? "font" : button.ends_with("Image") ? "open" : "color";
    }

    static std::string ValueOf(Element& element, std::string_view setting)
    {
        constexpr std::string_view ofWidget = "widget ";
        if (!setting.starts_with(ofWidget)) {
            return FieldText::Of(element, setting);
        }
        WidgetJournal journal;
        element.MyControl()->VisitProperties(journal);
        const std::string properties = journal.Take();
        const std::string name = std::string(setting.substr(ofWidget.size())) + "=";
        const std::size_t at = properties.find(name) + name.size();
        return properties.substr(at, properties.find(' ', at) - at);
    }

    // As the user would, by the kind of the control and what its name says of its dialog.
    void Act(std::string_view page, const PageRow& row)
    {
        Control& control = On<>(page, row.control);
        if (auto* list = dynamic_cast<ListBox*>(&control)) {
            list->Choose(std::stoi(row.input));
        } else if (auto* options = dynamic_cast<OptionArray*>(&control)) {
            options->Choose(std::stoi(row.input));
        } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
            box->Toggle();
        } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
            text->Type(row.input);
        } else if (auto* number = dynamic_cast<NumberField*>(&control)) {
            EXPECT_TRUE(number->Type(row.input));
        } else {
            Answer(row);
            dynamic_cast<Button&>(control).Push();
        }
    }

    void Answer(const PageRow& row)
    {
        const std::string_view asked = DialogOf(row.control);
        if (asked == "font") {
            dialog.WillPickFont([&](CommonDialog& font) { font.FontName = row.input; });
        } else if (asked == "open") {
            dialog.WillOpen(row.input);
        } else {
            dialog.WillPickColor(Color{std::stoi(row.input)});
        }
    }

    // What the controls of a page show.
    std::string Shown(std::string_view page)
    {
        std::string shown;
        for (const auto& item : main.Panel().FindPage(page)->Controls()) {
            shown += item->Name() + ' ';
            if (const auto* list = dynamic_cast<ListBox*>(item.get())) {
                shown += std::to_string(list->ListIndex());
            } else if (const auto* options = dynamic_cast<OptionArray*>(item.get())) {
                shown += std::to_string(options->Index());
            } else if (const auto* box = dynamic_cast<CheckBox*>(item.get())) {
                shown += std::to_string(box->Value());
            } else if (const auto* text = dynamic_cast<TextBox*>(item.get())) {
                shown += text->Text();
            } else if (const auto* number = dynamic_cast<NumberField*>(item.get())) {
                shown += std::to_string(number->Value());
            } else if (const auto* swatch = dynamic_cast<Swatch*>(item.get())) {
                shown += std::to_string(swatch->BackColor().value) + swatch->Caption();
            }
            shown += '\n';
        }
        return shown;
    }
};

TEST_F(APage, WritesEachControlThroughAtOnceAndReadsItBack)
{
    for (const PageTable& each : pages) {
        Element& element = InsertOf(each.type);
        for (const PageRow& row : each.rows) {
            SCOPED_TRACE(std::string(each.page) + '.' + row.control);
            EXPECT_NE(ValueOf(element, row.setting), row.Stored());
            Act(each.page, row);
            EXPECT_EQ(ValueOf(element, row.setting), row.Stored());
        }
        const std::string before = Shown(each.page);
        InsertOf(each.type);
        EXPECT_NE(Shown(each.page), before);
        Select(element);
        EXPECT_EQ(Shown(each.page), before);
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(APage, ReportsAFailureUnderTheNumberOfTheControl)
{
    for (const PageTable& each : pages) {
        InsertOf(each.type);
        Page& page = *main.Panel().FindPage(each.page);
        for (const bool isBound : {true, false}) { // then a dialog doesn't come up, or there is nothing to write to
            for (const PageRow& row : each.rows) {
                SCOPED_TRACE(std::string(each.page) + '.' + row.control);
                On<>(each.page, row.control).Set(&Control::Enabled, true);
                auto* button = dynamic_cast<Button*>(&On<>(each.page, row.control));
                if ((button != nullptr) != isBound) {
                    continue;
                }
                const std::size_t before = reporter.reports.size();
                reporter.Announce(RefNumber{row.ref, {}});
                if (button != nullptr) {
                    dialog.planned.Plan(DialogOf(row.control), 1);
                    button->Push();
                } else {
                    Act(each.page, row);
                }
                ASSERT_EQ(reporter.reports.size(), before + 1);
                EXPECT_EQ(reporter.reports.back().message,
                          "An error occurred while setting the property value. Please try again.");
            }
            page.ClearOwner();
        }
    }
}

TEST_F(APage, TakesNumbersFromTheLeastToTheMost)
{
    const struct {
        const char* page;
        const char* fields;
        const char* below;
        const char* least;
        const char* most;
        const char* above;
    } ranges[] = {
        {"frmCVGeneral", "txtX txtY", "-100001", "-100000", "100000", "100001"},
        {"frmCVGeneral", "txtWidth txtHeight", "-1", "0", "100000", "100001"},
        {"frmCVMeterLinear", "txtPointerSize txtPointerOffset txtBandWidth txtLabelMargin", "-10001", "-10000", "10000",
         "10001"},
        {"frmCVMeterAngle", "txtRange txtStartDeg", "-1", "0", "360", "361"},
        {"frmCVMeterAngle", "txtRadius", "-1", "0", "10000", "10001"},
        {"frmCVMeterAngle", "txtOffsetX txtOffsetY txtBandWidth txtLabelMargin txtPointerSize txtPointerLen txtHubSize",
         "-10001", "-10000", "10000", "10001"},
        {"frmCVMeterProps", "txtMin txtMax", "-100000", "-99999", "99999", "100000"},
        {"frmCVMeterProps", "txtSectionEnd(0) txtSectionEnd(1) txtSectionEnd(2) txtSectionEnd(3)", "-1000000000000000",
         "-999999999999999", "999999999999999", "1000000000000000"},
    };
    for (const auto& range : ranges) {
        InsertOf(std::string_view(range.page) == "frmCVMeterAngle" ? clsMtrAngle::type : clsMtrLinear::type);
        std::istringstream fields(range.fields);
        for (std::string name; fields >> name;) {
            auto& field = On<NumberField>(range.page, name);
            field.Set(&Control::Enabled, true);
            EXPECT_FALSE(field.Type(range.below)) << range.page << '.' << name;
            EXPECT_TRUE(field.Type(range.least)) << range.page << '.' << name;
            EXPECT_FALSE(field.Type(range.above)) << range.page << '.' << name;
            EXPECT_TRUE(field.Type(range.most)) << range.page << '.' << name;
        }
    }
}

// A number that a page shows and nobody touches keeps its bits: the sign of a zero, and those of a number that is none.
TEST_F(APage, KeepsTheBitsOfANumberThatNobodyTouched)
{
    auto& meter = Insert<clsMtrAngle>();
    for (const std::uint32_t bits : {0x80000000U, 0x7FC12345U, 0xFFA00001U, 0x7F800000U, 0x00000001U}) {
        const auto number = std::bit_cast<float>(bits);
        meter.Set(&ScaleMeter::PosMin, number);
        meter.Set(&ScaleMeter::SectionEnd2, number);
        meter.Set(&Element::ObjLeft, number);
        auto& other = Insert<clsMtrAngle>();
        other.Set(&ScaleMeter::PosMin, 5);
        other.Set(&ScaleMeter::SectionEnd2, 5);
        Select(other);
        Select(meter);
        for (const float kept : {meter.PosMin(), meter.SectionEnd2(), meter.ObjLeft()}) {
            EXPECT_EQ(std::bit_cast<std::uint32_t>(kept), bits);
        }
    }
}

TEST_F(APage, SaysWhichCharactersAViewFileCannotHold)
{
    Insert<clsLabel>();
    auto& caption = On<TextBox>("frmCVLabel", "txtCaption");
    const auto& warning = On<Label>("frmCVLabel", "lblBeyondtxtCaption");
    caption.Type("Größe \xE2\x82\xAC?");
    EXPECT_FALSE(warning.Visible());
    caption.Type("10 k\xCE\xA9 \xD0\x96\xCE\xA9");
    EXPECT_TRUE(warning.Visible());
    EXPECT_EQ(warning.Caption(), "A view file can't hold: \xCE\xA9\xD0\x96");
    caption.Type("10 k");
    EXPECT_FALSE(warning.Visible());
}

} // namespace
} // namespace quor
