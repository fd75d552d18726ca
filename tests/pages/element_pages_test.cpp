// The seven pages of the kinds that are neither the round LED nor meters: what each list offers, and where a page is
// odd.

#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

struct AnElementPage : EditorFixture {
    void SetUp() override
    {
        EditorFixture::SetUp();
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
    }
};

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

TEST_F(AnElementPage, ShowsTheMaskColourByItsBox)
{
    const auto& masked = Insert<clsPicture>();
    auto& use = On<CheckBox>("frmCVPicture", "chkUseMask");
    const auto expect = [&](Color color, bool isOn) {
        EXPECT_EQ(On<Swatch>("frmCVPicture", "clrMask").BackColor(), color);
        EXPECT_EQ(On<Button>("frmCVPicture", "cmdBrwsMaskColor").Enabled(), isOn);
    };
    expect(Color{0xC0C0C0}, false); // the box was off before, so only the colour was read
    use.Toggle();
    expect(Color{0xC0C0C0}, true);
    use.Toggle();
    expect(colors::buttonFace, false);
    use.Toggle();
    Insert<clsPicture>();
    expect(colors::buttonFace, false);
    Select(masked);
    expect(Color{0xC0C0C0}, true);
}

TEST_F(AnElementPage, TakesNoCaptionsThatComeByThemselves)
{
    for (const auto& [page, type] : {std::pair{"frmCVBlnPic", clsBoolPic::type}, {"frmCVCommand", clsCommand::type}}) {
        main.InsertElement(type);
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
