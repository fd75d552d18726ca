// The seven pages of the kinds that are neither the round LED nor meters: what each control writes, under which number
// it reports, what its list offers, and where a page is odd.

#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/editor/editor_fixture.h"
#include "tests/support/field_text.h"

#include <set>

namespace quor {
namespace {

// What the user does to a control, and what is in the setting then. Of a list the row, of a box 1 or 0.
struct PageRow {
    const char* page;
    const char* control;
    const char* setting;
    const char* value;
};

const PageRow rows[] = {
    {"frmCVLEDRect", "cboBevelStyle", "BevelStyle", "1"},
    {"frmCVLEDRect", "cmdBrwsOnColor", "ColorActive", "11"},
    {"frmCVLEDRect", "chkAutoOffColor", "AutoInactive", "0"},
    {"frmCVLEDRect", "cmdBrwsOffColor", "ColorInactive", "12"},
    {"frmCVLEDRect", "chkReflection", "Reflection", "0"},
    {"frmCVLEDRect", "txtCaptionOn", "CaptionOn", "lit"},
    {"frmCVLEDRect", "txtCaptionOff", "CaptionOff", "dark"},
    {"frmCVLEDRect", "cmdBrwsFontOn", "CaptionOnColor", "13"},
    {"frmCVLEDRect", "cmdBrwsFontOff", "CaptionOffColor", "14"},
    {"frmCVLEDRect", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVLEDRect", "cboAlignment", "CaptionAlignment", "2"},
    {"frmCVLEDRect", "chkAutoCaption", "AutoCaption", "1"},
    {"frmCVLEDRect", "chkWordWrap", "CaptionWordWrap", "1"},

    {"frmCVStatusLabel", "chkTransparent", "BGTransparent", "0"},
    {"frmCVStatusLabel", "cmdBrwsBGColor", "BGColor", "11"},
    {"frmCVStatusLabel", "chkBakColorDef", "BGColor", "-2147483633"},
    {"frmCVStatusLabel", "cboBorder", "Border3D", "2"},
    {"frmCVStatusLabel", "txtCaptionOn", "CaptionOn", "lit"},
    {"frmCVStatusLabel", "txtCaptionOff", "CaptionOff", "dark"},
    {"frmCVStatusLabel", "chkAutoCaption", "AutoCaption", "1"},
    {"frmCVStatusLabel", "cmdBrwsFontColor", "CaptionColor", "12"},
    {"frmCVStatusLabel", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVStatusLabel", "cboAlignment", "CaptionAlignment", "2"},
    {"frmCVStatusLabel", "chkWordWrap", "CaptionWordWrap", "1"},

    {"frmCVLabel", "chkTransparent", "BGTransparent", "0"},
    {"frmCVLabel", "cmdBrwsBGColor", "BGColor", "11"},
    {"frmCVLabel", "chkBakColorDef", "BGColor", "-2147483633"},
    {"frmCVLabel", "cboBorder", "Border3D", "2"},
    {"frmCVLabel", "txtCaption", "Caption", "Pump"},
    {"frmCVLabel", "cmdBrwsFontColor", "CaptionColor", "12"},
    {"frmCVLabel", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVLabel", "cboAlignment", "CaptionAlignment", "1"},
    {"frmCVLabel", "chkWordWrap", "CaptionWordWrap", "1"},

    {"frmCVBlnPic", "cmdBrwsBGColor", "BGColor", "10"},
    {"frmCVBlnPic", "chkBakColorDef", "BGColor", "-2147483633"},
    {"frmCVBlnPic", "cboBevelStyle", "BevelStyle", "1"},
    {"frmCVBlnPic", "txtOnImage", "ImageOn", "on.bmp"},
    {"frmCVBlnPic", "txtOffImage", "ImageOff", "off.bmp"},
    {"frmCVBlnPic", "cmdBrwsOnImage", "ImageOn", "off.bmp"},
    {"frmCVBlnPic", "cmdBrwsOffImage", "ImageOff", "on.bmp"},
    {"frmCVBlnPic", "cboImageAlign", "ImageAlignment", "12"},
    {"frmCVBlnPic", "chkUseMask", "ImageUseMask", "1"},
    {"frmCVBlnPic", "cmdBrwsMaskColor", "ImageMaskColor", "11"},
    {"frmCVBlnPic", "txtCaptionOn", "CaptionOn", "lit"},
    {"frmCVBlnPic", "txtCaptionOff", "CaptionOff", "dark"},
    {"frmCVBlnPic", "chkAutoCaption", "AutoCaption", "1"},
    {"frmCVBlnPic", "cmdBrwsFontColor", "CaptionColor", "12"},
    {"frmCVBlnPic", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVBlnPic", "cboAlignment", "CaptionAlignment", "8"},
    {"frmCVBlnPic", "chkWordWrap", "CaptionWordWrap", "1"},

    {"frmCVCommand", "txtCaption", "Caption", "Start"},
    {"frmCVCommand", "chkAutoCaption", "AutoCaption", "1"},
    {"frmCVCommand", "cmdBrwsFontColor", "CaptionColor", "11"},
    {"frmCVCommand", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVCommand", "chkWordWrap", "CaptionWordWrap", "1"},
    {"frmCVCommand", "txtImage", "ImageFile", "on.bmp"},
    {"frmCVCommand", "cmdBrwsImage", "ImageFile", "off.bmp"},
    {"frmCVCommand", "cboImageAlign", "ImageAlignment", "12"},
    {"frmCVCommand", "chkUseMask", "ImageUseMask", "1"},
    {"frmCVCommand", "cmdBrwsMaskColor", "ImageMaskColor", "12"},

    {"frmCVCmdLED", "txtCaption", "Caption", "Start"},
    {"frmCVCmdLED", "chkAutoCaption", "AutoCaption", "1"},
    {"frmCVCmdLED", "cmdBrwsFontColor", "CaptionColor", "11"},
    {"frmCVCmdLED", "cmdBrwsFont", "CaptionFont", "Arial"},
    {"frmCVCmdLED", "cmdBrwsLEDColor", "LEDColor", "12"},
    {"frmCVCmdLED", "cboAlignment", "LEDAlignment", "3"},

    {"frmCVPicture", "txtImage", "PictureFile", "on.bmp"},
    {"frmCVPicture", "cmdBrwsImage", "PictureFile", "off.bmp"},
    {"frmCVPicture", "cboFillStyle", "PictureFillMode", "2"},
    {"frmCVPicture", "chkUseMask", "PictureUseMask", "1"},
    {"frmCVPicture", "cmdBrwsMaskColor", "PictureMaskColor", "11"},
    {"frmCVPicture", "cboBevelStyle", "BevelStyle", "1"},
    {"frmCVPicture", "cmdBrwsBGColor", "BGColor", "10"},
    {"frmCVPicture", "chkBakColorDef", "BGColor", "-2147483633"},
};

struct PageKind {
    const char* page;
    std::uint8_t type;
};

const PageKind pages[] = {
    {"frmCVLEDRect", clsLEDRect::type}, {"frmCVStatusLabel", clsStatusLabel::type}, {"frmCVLabel", clsLabel::type},
    {"frmCVBlnPic", clsBoolPic::type},  {"frmCVCommand", clsCommand::type},         {"frmCVCmdLED", clsCmdLED::type},
    {"frmCVPicture", clsPicture::type},
};

struct AnElementPage : EditorFixture {
    void SetUp() override
    {
        EditorFixture::SetUp();
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
    }

    // A new element, selected, with another ground than the default.
    Element& InsertOf(std::uint8_t type)
    {
        main.InsertElement(type);
        Element& element = main.View().CollectionOf(type).Item(main.SelectedWidget()->Tag());
        main.ReleaseControl();
        if (auto* status = dynamic_cast<clsBoolPic*>(&element)) {
            status->Set(&clsBoolPic::BGColor, Color{5});
        } else if (auto* picture = dynamic_cast<clsPicture*>(&element)) {
            picture->Set(&clsPicture::BGColor, Color{5});
        }
        Select(element);
        return element;
    }

    static std::string_view DialogOf(const PageRow& row)
    {
        const std::string_view name = row.control;
        return name == "cmdBrwsFont" ? "font" : name.ends_with("Image") ? "open" : "color";
    }

    // As the user would, by the kind of the control and what its name says of its dialog.
    void Act(const PageRow& row)
    {
        const std::string_view name = row.control;
        Control& control = On<>(row.page, name);
        if (auto* list = dynamic_cast<ListBox*>(&control)) {
            list->Choose(std::stoi(row.value));
        } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
            box->Toggle();
        } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
            text->Type(row.value);
        } else {
            const std::string_view asked = DialogOf(row);
            if (asked == "font") {
                dialog.WillPickFont([&](CommonDialog& font) { font.FontName = row.value; });
            } else if (asked == "open") {
                dialog.WillOpen(row.value);
            } else {
                dialog.WillPickColor(Color{std::stoi(row.value)});
            }
            dynamic_cast<Button&>(control).Push();
        }
    }

    static bool IsDialog(const PageRow& row) { return std::string_view(row.control).starts_with("cmdBrws"); }

    // A dialog fails to come up; other controls have nothing to write to.
    void ExpectReport(const PageRow& row)
    {
        const RefNumber ref = FindRef(row.page, row.control);
        reporter.Announce(ref);
        if (IsDialog(row)) {
            dialog.planned.Plan(DialogOf(row), 1);
            On<Button>(row.page, row.control).Push();
        } else {
            Act(row);
        }
        ASSERT_FALSE(reporter.reports.empty()) << row.page << '.' << row.control;
        EXPECT_EQ(reporter.reports.back().ref, ref.number) << row.page << '.' << row.control;
        EXPECT_EQ(reporter.reports.back().message,
                  "An error occurred while setting the property value. Please try again.");
    }

    // What the controls of a page show.
    std::string Shown(std::string_view page)
    {
        std::string shown;
        for (const auto& item : main.Panel().FindPage(page)->Controls()) {
            shown += item->Name() + ' ';
            if (const auto* list = dynamic_cast<ListBox*>(item.get())) {
                shown += std::to_string(list->ListIndex());
            } else if (const auto* box = dynamic_cast<CheckBox*>(item.get())) {
                shown += std::to_string(box->Value());
            } else if (const auto* text = dynamic_cast<TextBox*>(item.get())) {
                shown += text->Text();
            } else if (const auto* swatch = dynamic_cast<Swatch*>(item.get())) {
                shown += std::to_string(swatch->BackColor().value) + swatch->Caption();
            }
            shown += '\n';
        }
        return shown;
    }
};

TEST_F(AnElementPage, WritesEachControlThroughAtOnceAndReadsItBack)
{
    for (const PageKind& each : pages) {
        Element& element = InsertOf(each.type);
        for (const PageRow& row : rows) {
            if (std::string_view(row.page) != each.page) {
                continue;
            }
            SCOPED_TRACE(std::string(row.page) + '.' + row.control);
            const bool isTwoFlags = std::string_view(row.control) == "cboBorder";
            const std::string wanted = isTwoFlags ? "1" : row.value;
            EXPECT_NE(FieldText::Of(element, row.setting), wanted);
            Act(row);
            EXPECT_EQ(FieldText::Of(element, row.setting), wanted);
        }
        const std::string before = Shown(each.page);
        InsertOf(each.type);
        EXPECT_NE(Shown(each.page), before);
        Select(element);
        EXPECT_EQ(Shown(each.page), before);
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(AnElementPage, ReportsAFailureUnderTheNumberOfTheControl)
{
    std::set<std::int32_t> refs;
    for (const PageKind& each : pages) {
        InsertOf(each.type);
        Page& page = *main.Panel().FindPage(each.page);
        for (const auto& item : page.Controls()) {
            item->Set(&Control::Enabled, true);
        }
        for (const bool isDialog : {true, false}) {
            for (const PageRow& row : rows) {
                if (std::string_view(row.page) == each.page && IsDialog(row) == isDialog) {
                    ExpectReport(row);
                    refs.insert(reporter.reports.back().ref);
                }
            }
            page.ClearOwner(); // from here on nothing can be written
        }
    }
    EXPECT_EQ(refs.size(), std::size(rows));
}

TEST_F(AnElementPage, OffersItsListsInTheOrderThatFixesTheirValues)
{
    const std::string places = "Left Top|Left Middle|Left Bottom|Right Top|Right Middle|Right Bottom|Center Top|"
                               "Center Middle|Center Bottom|";
    const std::string besides = "Left of Caption|Right of Caption|Top of Caption|Bottom of Caption|";
    const std::tuple<const char*, const char*, std::string> lists[] = {
        {"frmCVLEDRect", "cboBevelStyle", "None|Raised|Lowered|"},
        {"frmCVBlnPic", "cboBevelStyle", "None|Lowered|Raised|"},
        {"frmCVPicture", "cboBevelStyle", "None|Lowered|Raised|"},
        {"frmCVLEDRect", "cboAlignment", "Center|Left Justify|Right Justify|"},
        {"frmCVStatusLabel", "cboAlignment", "Left Justify|Right Justify|Center|"},
        {"frmCVLabel", "cboAlignment", "Left Justify|Right Justify|Center|"},
        {"frmCVBlnPic", "cboAlignment", places},
        {"frmCVBlnPic", "cboImageAlign", places + besides},
        {"frmCVCommand", "cboImageAlign", places + besides},
        {"frmCVPicture", "cboFillStyle", "Centered|Stretched|Tiled|"},
        {"frmCVCmdLED", "cboAlignment", "Bottom|Top|Left|Right|"},
        {"frmCVStatusLabel", "cboBorder", "No Border|Flat Border|3D Border|"},
        {"frmCVLabel", "cboBorder", "No Border|Flat Border|3D Border|"},
    };
    for (const auto& [page, control, items] : lists) {
        std::string offered;
        for (const std::string& item : On<ListBox>(page, control).Items()) {
            offered += item + '|';
        }
        EXPECT_EQ(offered, items) << page << '.' << control;
    }
}

TEST_F(AnElementPage, OfALabelHasOneListForTwoFlags)
{
    auto& label = Insert<clsLabel>();
    auto& border = On<ListBox>("frmCVLabel", "cboBorder");
    for (const auto& [index, hasBorder, isSunken] : {std::tuple{2, true, true}, {1, true, false}, {0, false, false}}) {
        border.Choose(index);
        EXPECT_EQ(label.Border(), hasBorder);
        EXPECT_EQ(label.Border3D(), isSunken);
    }
    label.Set(&clsLabel::Border3D, true); // as no page leaves it
    Insert<clsLabel>();
    Select(label);
    EXPECT_EQ(border.ListIndex(), 0);
}

TEST_F(AnElementPage, OfALabelShowsTheButtonFaceWhileItIsTransparentAndWritesTheColourAgain)
{
    auto& label = Insert<clsStatusLabel>();
    const auto& ground = On<Swatch>("frmCVStatusLabel", "clrBG");
    const auto& browse = On<Button>("frmCVStatusLabel", "cmdBrwsBGColor");
    EXPECT_EQ(ground.BackColor(), colors::buttonFace);
    EXPECT_FALSE(browse.Enabled());
    On<Swatch>("frmCVStatusLabel", "clrBG").Push();
    EXPECT_EQ(dialog.Color, Color{}) << "no dialog came";

    label.MyControl()->Set(&TextLabel::BackColor, Color{5});
    On<CheckBox>("frmCVStatusLabel", "chkTransparent").Toggle();
    EXPECT_EQ(ground.BackColor(), Color{0xFFFFFF});
    EXPECT_TRUE(browse.Enabled());
    EXPECT_EQ(static_cast<const TextLabel*>(label.MyControl())->BackColor(), Color{0xFFFFFF});
    label.MyControl()->Set(&TextLabel::BackColor, Color{5});
    On<ListBox>("frmCVStatusLabel", "cboBorder").Choose(1);
    EXPECT_EQ(static_cast<const TextLabel*>(label.MyControl())->BackColor(), Color{0xFFFFFF});
}

TEST_F(AnElementPage, ShowsTheMaskColourOnlyWhileItIsUsed)
{
    Insert<clsPicture>();
    const auto& mask = On<Swatch>("frmCVPicture", "clrMask");
    const auto& browse = On<Button>("frmCVPicture", "cmdBrwsMaskColor");
    auto& use = On<CheckBox>("frmCVPicture", "chkUseMask");
    EXPECT_FALSE(browse.Enabled());
    use.Toggle();
    EXPECT_EQ(mask.BackColor(), Color{0xC0C0C0});
    EXPECT_TRUE(browse.Enabled());
    use.Toggle();
    EXPECT_EQ(mask.BackColor(), colors::buttonFace);
    EXPECT_FALSE(browse.Enabled());
}

TEST_F(AnElementPage, TakesNoCaptionsThatComeByThemselves)
{
    for (const auto& [page, type] : {std::pair{"frmCVBlnPic", clsBoolPic::type}, {"frmCVCommand", clsCommand::type}}) {
        InsertOf(type);
        auto& automatic = On<CheckBox>(page, "chkAutoCaption");
        auto& caption = On<TextBox>(page, type == clsCommand::type ? "txtCaption" : "txtCaptionOff");
        automatic.Toggle();
        EXPECT_FALSE(caption.Enabled());
        EXPECT_EQ(caption.BackColor(), colors::buttonFace);
        automatic.Toggle();
        EXPECT_TRUE(caption.Enabled());
        EXPECT_EQ(caption.BackColor(), colors::window);
    }
}

TEST_F(AnElementPage, AsksForTheFontWithItsColourWhereTheColourIsOne)
{
    auto& label = Insert<clsLabel>();
    label.Set(&clsLabel::CaptionColor, Color{7});
    Insert<clsLabel>();
    Select(label);
    dialog.WillPickFont([&](CommonDialog& font) {
        EXPECT_EQ(font.Flags, 257);
        EXPECT_EQ(font.Color, Color{7});
        font.FontName = "Arial";
        font.Color = Color{9};
    });
    On<Button>("frmCVLabel", "cmdBrwsFont").Push();
    EXPECT_EQ(static_cast<const TextLabel*>(label.MyControl())->Font().Name, "Arial");
    EXPECT_EQ(On<TextBox>("frmCVLabel", "txtFont").Text(), "Arial");
    EXPECT_EQ(On<Swatch>("frmCVLabel", "clrFont").BackColor(), Color{9});
    EXPECT_EQ(label.CaptionColor(), Color{9});

    Insert<clsLEDRect>();
    dialog.WillPickFont([&](CommonDialog& font) {
        EXPECT_EQ(font.Flags, 1);
        EXPECT_EQ(font.Color, Color{9}) << "left as it was";
    });
    On<Button>("frmCVLEDRect", "cmdBrwsFont").Push();
    const std::int32_t before = main.GetCurrentChecksum();
    dialog.WillCancel();
    On<Button>("frmCVLEDRect", "cmdBrwsFont").Push();
    EXPECT_EQ(main.GetCurrentChecksum(), before);
}

TEST_F(AnElementPage, TellsOfAPictureFileThatIsNotThereAndForgetsIt)
{
    auto& picture = Insert<clsPicture>();
    auto& field = On<TextBox>("frmCVPicture", "txtImage");
    field.Type("o");
    EXPECT_EQ(boxes.shown.back(), (ShownBox{"The image file could not be found:\no", "", BoxButtons::Ok}));
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(picture.PictureFile(), "");
    EXPECT_EQ(field.Text(), "");

    field.Type("on.bmp");
    field.Type("");
    EXPECT_EQ(boxes.shown.size(), 1U) << "no file is no missing one";
    files.PutText("broken.bmp", "");
    reporter.Announce(RefNumber{14218, {}});
    field.Type("broken.bmp");
    EXPECT_EQ(reporter.reports.back().number, failures::invalidPicture);
    EXPECT_EQ(picture.PictureFile(), "broken.bmp");

    auto& status = Insert<clsBoolPic>();
    On<TextBox>("frmCVBlnPic", "txtOnImage").Type("gone.bmp");
    EXPECT_EQ(status.ImageOn(), "gone.bmp") << "the picture that isn't shown isn't read";
    pictures.planned.Plan("load", 1, failures::pathNotFound);
    On<TextBox>("frmCVBlnPic", "txtOffImage").Type("x/off.bmp");
    EXPECT_EQ(boxes.shown.back().text, "The image file could not be found:\nx/off.bmp");

    Insert<clsCommand>();
    reporter.Announce(RefNumber{14118, {}});
    On<TextBox>("frmCVCommand", "txtImage").Type("gone.bmp");
    EXPECT_EQ(boxes.shown.size(), 2U) << "the command's field reports it as any failure";
}

TEST_F(AnElementPage, OpensThePictureDialogWithWhatTheFieldHas)
{
    Insert<clsPicture>();
    On<TextBox>("frmCVPicture", "txtImage").Type("on.bmp");
    std::string given;
    const Subscription looking = dialog.Shown.Subscribe([&](DialogKind) {
        given = dialog.FileName + ' ' + std::to_string(dialog.Flags) + ' ' + dialog.Filter.substr(0, 30);
    });
    dialog.WillCancel();
    On<Button>("frmCVPicture", "cmdBrwsImage").Push();
    EXPECT_EQ(given, "on.bmp 4100 All Picture Files|*.bmp;*.dib;");
    EXPECT_EQ(On<TextBox>("frmCVPicture", "txtImage").Text(), "on.bmp") << "a cancelled dialog leaves it";
}

} // namespace
} // namespace quor
