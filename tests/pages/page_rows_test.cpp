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
#include "tests/test.h"

#include <bit>
#include <iterator>

namespace {

// What the user gives a control (of a list or an option its index, of a box what it is then), the setting, or the
// widget's property where no record has the setting, and what that holds then if it reads otherwise.
struct PageRow {
    const char* page;
    const char* control;
    std::int32_t ref;
    const char* input;
    const char* setting;
    const char* stored = nullptr;

    std::string Stored() const { return stored == nullptr ? input : stored; }
};

const PageRow rows[] = {
    {"frmCVGeneral", "txtHeight", 14119, "20", "ObjHeight", "300.000000"},
    {"frmCVGeneral", "txtWidth", 14120, "30", "ObjWidth", "450.000000"},
    {"frmCVGeneral", "txtX", 14121, "100", "ObjLeft", "1500.000000"},
    {"frmCVGeneral", "txtY", 14122, "50", "ObjTop", "750.000000"},
    {"frmCVLEDRound", "cboBevelStyle", 14147, "1", "BevelStyle"},
    {"frmCVLEDRound", "cmdBrwsOnColor", 14151, "11", "ColorActive"},
    {"frmCVLEDRound", "chkAutoOffColor", 14148, "0", "AutoInactive"},
    {"frmCVLEDRound", "cmdBrwsOffColor", 14150, "12", "ColorInactive"},
    {"frmCVLEDRound", "chkReflection", 14149, "0", "Reflection"},
    {"frmCVLEDRect", "cboBevelStyle", 14134, "1", "BevelStyle"},
    {"frmCVLEDRect", "cmdBrwsOnColor", 14143, "11", "ColorActive"},
    {"frmCVLEDRect", "chkAutoOffColor", 14136, "0", "AutoInactive"},
    {"frmCVLEDRect", "cmdBrwsOffColor", 14142, "12", "ColorInactive"},
    {"frmCVLEDRect", "chkReflection", 14137, "0", "Reflection"},
    {"frmCVLEDRect", "txtCaptionOn", 14146, "lit", "CaptionOn"},
    {"frmCVLEDRect", "txtCaptionOff", 14145, "dark", "CaptionOff"},
    {"frmCVLEDRect", "cmdBrwsFontOn", 14141, "13", "CaptionOnColor"},
    {"frmCVLEDRect", "cmdBrwsFontOff", 14140, "14", "CaptionOffColor"},
    {"frmCVLEDRect", "cmdBrwsFont", 14139, "Arial", "CaptionFont"},
    {"frmCVLEDRect", "cboAlignment", 14133, "2", "CaptionAlignment"},
    {"frmCVLEDRect", "chkAutoCaption", 14135, "1", "AutoCaption"},
    {"frmCVLEDRect", "chkWordWrap", 14138, "1", "CaptionWordWrap"},
    {"frmCVStatusLabel", "chkTransparent", 14223, "0", "BGTransparent"},
    {"frmCVStatusLabel", "cmdBrwsBGColor", 14225, "11", "BGColor"},
    {"frmCVStatusLabel", "chkBakColorDef", 14222, "-2147483633", "BGColor"},
    {"frmCVStatusLabel", "cboBorder", 14220, "2", "Border3D", "1"},
    {"frmCVStatusLabel", "txtCaptionOn", 14230, "lit", "CaptionOn"},
    {"frmCVStatusLabel", "txtCaptionOff", 14229, "dark", "CaptionOff"},
    {"frmCVStatusLabel", "chkAutoCaption", 14221, "1", "AutoCaption"},
    {"frmCVStatusLabel", "cmdBrwsFontColor", 14227, "12", "CaptionColor"},
    {"frmCVStatusLabel", "cmdBrwsFont", 14226, "Arial", "CaptionFont"},
    {"frmCVStatusLabel", "cboAlignment", 14219, "2", "CaptionAlignment"},
    {"frmCVStatusLabel", "chkWordWrap", 14224, "1", "CaptionWordWrap"},
    {"frmCVLabel", "chkTransparent", 14126, "0", "BGTransparent"},
    {"frmCVLabel", "cmdBrwsBGColor", 14128, "11", "BGColor"},
    {"frmCVLabel", "chkBakColorDef", 14125, "-2147483633", "BGColor"},
    {"frmCVLabel", "cboBorder", 14124, "2", "Border3D", "1"},
    {"frmCVLabel", "txtCaption", 14132, "Pump", "Caption"},
    {"frmCVLabel", "cmdBrwsFontColor", 14130, "12", "CaptionColor"},
    {"frmCVLabel", "cmdBrwsFont", 14129, "Arial", "CaptionFont"},
    {"frmCVLabel", "cboAlignment", 14123, "1", "CaptionAlignment"},
    {"frmCVLabel", "chkWordWrap", 14127, "1", "CaptionWordWrap"},
    {"frmCVBlnPic", "cmdBrwsBGColor", 14083, "10", "BGColor"},
    {"frmCVBlnPic", "chkBakColorDef", 14080, "-2147483633", "BGColor"},
    {"frmCVBlnPic", "cboBevelStyle", 14077, "1", "BevelStyle"},
    {"frmCVBlnPic", "txtOnImage", 14093, "on.bmp", "ImageOn"},
    {"frmCVBlnPic", "txtOffImage", 14092, "off.bmp", "ImageOff"},
    {"frmCVBlnPic", "cmdBrwsOnImage", 14088, "off.bmp", "ImageOn"},
    {"frmCVBlnPic", "cmdBrwsOffImage", 14087, "on.bmp", "ImageOff"},
    {"frmCVBlnPic", "cboImageAlign", 14078, "12", "ImageAlignment"},
    {"frmCVBlnPic", "chkUseMask", 14081, "1", "ImageUseMask"},
    {"frmCVBlnPic", "cmdBrwsMaskColor", 14086, "11", "ImageMaskColor"},
    {"frmCVBlnPic", "txtCaptionOn", 14091, "lit", "CaptionOn"},
    {"frmCVBlnPic", "txtCaptionOff", 14090, "dark", "CaptionOff"},
    {"frmCVBlnPic", "chkAutoCaption", 14079, "1", "AutoCaption"},
    {"frmCVBlnPic", "cmdBrwsFontColor", 14085, "12", "CaptionColor"},
    {"frmCVBlnPic", "cmdBrwsFont", 14084, "Arial", "CaptionFont"},
    {"frmCVBlnPic", "cboAlignment", 14076, "8", "CaptionAlignment"},
    {"frmCVBlnPic", "chkWordWrap", 14082, "1", "CaptionWordWrap"},
    {"frmCVCommand", "txtCaption", 14117, "Start", "Caption"},
    {"frmCVCommand", "chkAutoCaption", 14109, "1", "AutoCaption"},
    {"frmCVCommand", "cmdBrwsFontColor", 14113, "11", "CaptionColor"},
    {"frmCVCommand", "cmdBrwsFont", 14112, "Arial", "CaptionFont"},
    {"frmCVCommand", "chkWordWrap", 14111, "1", "CaptionWordWrap"},
    {"frmCVCommand", "txtImage", 14118, "on.bmp", "ImageFile"},
    {"frmCVCommand", "cmdBrwsImage", 14114, "off.bmp", "ImageFile"},
    {"frmCVCommand", "cboImageAlign", 14108, "12", "ImageAlignment"},
    {"frmCVCommand", "chkUseMask", 14110, "1", "ImageUseMask"},
    {"frmCVCommand", "cmdBrwsMaskColor", 14115, "12", "ImageMaskColor"},
    {"frmCVCmdLED", "txtCaption", 14107, "Start", "Caption"},
    {"frmCVCmdLED", "chkAutoCaption", 14102, "1", "AutoCaption"},
    {"frmCVCmdLED", "cmdBrwsFontColor", 14104, "11", "CaptionColor"},
    {"frmCVCmdLED", "cmdBrwsFont", 14103, "Arial", "CaptionFont"},
    {"frmCVCmdLED", "cmdBrwsLEDColor", 14105, "12", "LEDColor"},
    {"frmCVCmdLED", "cboAlignment", 14101, "3", "LEDAlignment"},
    {"frmCVPicture", "txtImage", 14218, "on.bmp", "PictureFile"},
    {"frmCVPicture", "cmdBrwsImage", 14215, "off.bmp", "PictureFile"},
    {"frmCVPicture", "cboFillStyle", 14211, "2", "PictureFillMode"},
    {"frmCVPicture", "chkUseMask", 14213, "1", "PictureUseMask"},
    {"frmCVPicture", "cmdBrwsMaskColor", 14216, "11", "PictureMaskColor"},
    {"frmCVPicture", "cboBevelStyle", 14210, "1", "BevelStyle"},
    {"frmCVPicture", "cmdBrwsBGColor", 14214, "10", "BGColor"},
    {"frmCVPicture", "chkBakColorDef", 14212, "-2147483633", "BGColor"},
    {"frmCVMeterText", "cmdBrwsBGColor", 14202, "1193046", "BGColor"},
    {"frmCVMeterText", "cmdBrwsFont", 14203, "Arial", "Font"},
    {"frmCVMeterText", "cmdBrwsFontColor", 14204, "255", "FontColor"},
    {"frmCVMeterText", "cboAlignment", 14199, "1", "FontAlignment"},
    {"frmCVMeterText", "cboBorder", 14200, "1", "BorderStyle"},
    {"frmCVMeterText", "chkBakColorDef", 14201, "1", "BGColor", "-2147483633"},
    {"frmCVMeterAngle", "txtRange", 14176, "100", "MtrRange"},
    {"frmCVMeterAngle", "txtStartDeg", 14177, "101", "MtrStart"},
    {"frmCVMeterAngle", "txtRadius", 14175, "50", "MtrRadius"},
    {"frmCVMeterAngle", "txtOffsetX", 14171, "-4", "MtrOffsetX"},
    {"frmCVMeterAngle", "txtOffsetY", 14172, "-5", "MtrOffsetY"},
    {"frmCVMeterAngle", "cmdBrwsBGColor", 14162, "1193046", "BGColor"},
    {"frmCVMeterAngle", "chkBakColorDef", 14155, "1", "BGColor", "-2147483633"},
    {"frmCVMeterAngle", "cboBorderStyle", 14153, "1", "BorderStyle"},
    {"frmCVMeterAngle", "cmdBrwsFont", 14163, "Arial", "TickLabelFont"},
    {"frmCVMeterAngle", "cmdBrwsFontColor", 14164, "255", "TickLabelColor"},
    {"frmCVMeterAngle", "txtLabelMargin", 14170, "-6", "LabelMargin"},
    {"frmCVMeterAngle", "chkShowInnerArc", 14158, "1", "ShowInnerArc"},
    {"frmCVMeterAngle", "chkShowOutterArc", 14159, "0", "ShowOuterArc"},
    {"frmCVMeterAngle", "chkReverseScale", 14156, "1", "ReverseScale"},
    {"frmCVMeterAngle", "txtBandWidth", 14168, "7", "BandWidth"},
    {"frmCVMeterAngle", "cboPointerStyle", 14154, "3", "PointerStyle"},
    {"frmCVMeterAngle", "txtPointerSize", 14174, "8", "PointerSize"},
    {"frmCVMeterAngle", "txtPointerLen", 14173, "30", "PointerLength"},
    {"frmCVMeterAngle", "cmdBrwsPointerColor", 14166, "254", "PointerColor"},
    {"frmCVMeterAngle", "chkShowHub", 14157, "1", "MtrHubVisible"},
    {"frmCVMeterAngle", "txtHubSize", 14169, "11", "MtrHubSize"},
    {"frmCVMeterAngle", "cmdBrwsHubColor", 14165, "253", "MtrHubColor"},
    {"frmCVMeterAngle", "chkShowTickVals", 14160, "0", "TickVals"},
    {"frmCVMeterAngle", "chkTransparent", 14161, "1", "BGTransparent"},
    {"frmCVMeterLinear", "optOrientation", 14189, "0", "MeterOrientation"},
    {"frmCVMeterLinear", "cmdBrwsBGColor", 14183, "1193046", "BGColor"},
    {"frmCVMeterLinear", "cboBorderStyle", 14178, "1", "BorderStyle"},
    {"frmCVMeterLinear", "cmdBrwsPointerColor", 14186, "254", "widget PointerColor"},
    {"frmCVMeterLinear", "txtPointerSize", 14193, "8", "PointerSize"},
    {"frmCVMeterLinear", "txtPointerOffset", 14192, "-3", "PointerOffset"},
    {"frmCVMeterLinear", "cmdBrwsFont", 14184, "Arial", "TickLabelFont"},
    {"frmCVMeterLinear", "cmdBrwsFontColor", 14185, "255", "TickLabelColor"},
    {"frmCVMeterLinear", "txtLabelMargin", 14191, "-6", "TickLabelMargin"},
    {"frmCVMeterLinear", "optLabelLoc", 14188, "1", "TickLocation"},
    {"frmCVMeterLinear", "chkReverseScale", 14180, "1", "ReverseScale"},
    {"frmCVMeterLinear", "txtBandWidth", 14190, "7", "BandWidth"},
    {"frmCVMeterLinear", "chkBakColorDef", 14179, "1", "BGColor", "-2147483633"},
    {"frmCVMeterLinear", "chkShowTickVals", 14181, "0", "widget TickValuesVisible", "false"},
    {"frmCVMeterLinear", "chkTransparent", 14182, "1", "BGTransparent"},
    {"frmCVMeterProps", "txtMin", 14197, "-20", "PosMin", "-20.000000"},
    {"frmCVMeterProps", "txtMax", 14196, "120", "PosMax", "120.000000"},
    {"frmCVMeterProps", "txtSectionEnd(0)", 14198, "1", "SectionEnd1", "1.000000"},
    {"frmCVMeterProps", "txtSectionEnd(1)", 14198, "2", "SectionEnd2", "2.000000"},
    {"frmCVMeterProps", "txtSectionEnd(2)", 14198, "3", "SectionEnd3", "3.000000"},
    {"frmCVMeterProps", "txtSectionEnd(3)", 14198, "4000", "SectionEnd4", "4000.000000"},
    {"frmCVMeterProps", "cmdBrwsSectionColor(0)", 14195, "11", "SectionColor1"},
    {"frmCVMeterProps", "cmdBrwsSectionColor(1)", 14195, "12", "SectionColor2"},
    {"frmCVMeterProps", "cmdBrwsSectionColor(2)", 14195, "13", "SectionColor3"},
    {"frmCVMeterProps", "cmdBrwsSectionColor(3)", 14195, "14", "SectionColor4"},
    {"frmCVMeterProps", "cmdBrwsSectionColor(4)", 14195, "15", "SectionColor5"},
    {"frmCVMeterProps", "chkAutoSetPos", 14194, "1", "AutoPositions"},
};

struct PageKind {
    const char* page;
    std::uint8_t type;
};

const PageKind pages[] = {{"frmCVGeneral", clsLEDRound::type},    {"frmCVLEDRound", clsLEDRound::type},
                          {"frmCVLEDRect", clsLEDRect::type},     {"frmCVStatusLabel", clsStatusLabel::type},
                          {"frmCVLabel", clsLabel::type},         {"frmCVBlnPic", clsBoolPic::type},
                          {"frmCVCommand", clsCommand::type},     {"frmCVCmdLED", clsCmdLED::type},
                          {"frmCVPicture", clsPicture::type},     {"frmCVMeterText", clsMeterText::type},
                          {"frmCVMeterAngle", clsMtrAngle::type}, {"frmCVMeterLinear", clsMtrLinear::type},
                          {"frmCVMeterProps", clsMtrLinear::type}};

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

    static std::vector<PageRow> RowsOf(std::string_view page)
    {
        std::vector<PageRow> found;
        std::ranges::copy_if(rows, std::back_inserter(found), [page](const PageRow& row) { return row.page == page; });
        return found;
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
    void Act(const PageRow& row)
    {
        Control& control = On<>(row.page, row.control);
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
    for (const PageKind& each : pages) {
        Element& element = InsertOf(each.type);
        for (const PageRow& row : RowsOf(each.page)) {
            SCOPED_TRACE(std::string(each.page) + '.' + row.control);
            EXPECT_NE(ValueOf(element, row.setting), row.Stored());
            Act(row);
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
    for (const PageKind& each : pages) {
        InsertOf(each.type);
        Page& page = *main.Panel().FindPage(each.page);
        for (const bool isBound : {true, false}) { // then a dialog doesn't come up, or there is nothing to write to
            for (const PageRow& row : RowsOf(each.page)) {
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
                    Act(row);
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
