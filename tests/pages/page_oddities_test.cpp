// Where pages of elements and the view are odd.

#include "elements/bool_pic.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "elements/mtr_angle.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "pages/font_dialog.h"
#include "tests/editor/editor_fixture.h"

#include <bit>

namespace {

struct AnOddPage : EditorFixture {
    void SetUp() override
    {
        EditorFixture::SetUp();
        files.PutText("on.bmp", "on");
    }
    std::int32_t ColorOf(std::string_view page, std::string_view swatch) const
    {
        return On<Swatch>(page, swatch).BackColor().value;
    }
};

TEST_F(AnOddPage, OfALabelShowsNoBorderWhereItIsSunkenAlone)
{
    auto& label = Insert<clsLabel>();
    On<ListBox>("frmCVLabel", "cboBorder").Choose(2);
    label.Set(&clsLabel::Border, false); // as no page leaves it
    Insert<clsLabel>();
    Select(label);
    EXPECT_EQ(On<ListBox>("frmCVLabel", "cboBorder").ListIndex(), 0);
}

TEST_F(AnOddPage, OfALabelWritesItsGroundAgainWithTransparencyAndBorder)
{
    auto& label = Insert<clsStatusLabel>();
    const auto& shown = static_cast<const TextLabel&>(*label.MyControl());
    On<Swatch>("frmCVStatusLabel", "clrBG").Push();
    EXPECT_EQ(dialog.Color, Color{}) << "no dialog came, for the label is transparent";
    label.MyControl()->Set(&TextLabel::BackColor, Color{5});
    On<CheckBox>("frmCVStatusLabel", "chkTransparent").Toggle();
    EXPECT_EQ(shown.BackColor(), Color{0xFFFFFF});
    label.MyControl()->Set(&TextLabel::BackColor, Color{5});
    On<ListBox>("frmCVStatusLabel", "cboBorder").Choose(1);
    EXPECT_EQ(shown.BackColor(), Color{0xFFFFFF});
}

TEST_F(AnOddPage, KeepsASwatchWhoseBoxDoesNotChangeBetweenTwoElements)
{
    const auto& first = Insert<clsLEDRound>();
    auto& second = Insert<clsLEDRound>();
    second.Set(&clsLEDRound::ColorInactive, Color{0x778899});
    Select(first);
    Select(second);
    const auto& off = On<Swatch>("frmCVLEDRound", "clrOff");
    EXPECT_EQ(off.Caption(), "N/A");
    EXPECT_EQ(off.BackColor(), Color{0x778899}) << "a colour under the words";
    EXPECT_FALSE(On<Button>("frmCVLEDRound", "cmdBrwsOffColor").Enabled());

    const auto& masked = Insert<clsPicture>();
    EXPECT_EQ(ColorOf("frmCVPicture", "clrMask"), 0xC0C0C0) << "the box was off before, so only the colour was read";
    On<CheckBox>("frmCVPicture", "chkUseMask").Toggle();
    Insert<clsPicture>();
    EXPECT_EQ(ColorOf("frmCVPicture", "clrMask"), colors::buttonFace.value);
    Select(masked);
    EXPECT_EQ(ColorOf("frmCVPicture", "clrMask"), 0xC0C0C0);
}

TEST_F(AnOddPage, OffersInEachDialogWhatIsThereAndWritesItAgainOnCancel)
{
    auto& led = Insert<clsLEDRound>();
    const std::int32_t before = main.GetCurrentChecksum();
    dialog.WillCancel();
    On<Swatch>("frmCVLEDRound", "clrOn").Push();
    EXPECT_EQ(dialog.Color, led.ColorActive());
    EXPECT_EQ(main.GetCurrentChecksum(), before);

    auto& label = Insert<clsLabel>();
    label.Set(&clsLabel::CaptionColor, Color{7});
    Insert<clsLabel>();
    Select(label);
    dialog.WillPickFont([&](CommonDialog& font) {
        EXPECT_EQ(font.Flags, 257);
        EXPECT_EQ(font.Color, Color{7});
        font.Color = Color{9};
    });
    On<Button>("frmCVLabel", "cmdBrwsFont").Push();
    EXPECT_EQ(label.CaptionColor(), Color{9});
    EXPECT_EQ(ColorOf("frmCVLabel", "clrFont"), 9);

    Insert<clsLEDRect>(); // its captions have two colours, the font none
    dialog.WillPickFont([&](CommonDialog& font) {
        EXPECT_EQ(font.Flags, 1);
        EXPECT_EQ(font.Color, Color{9}) << "left as it was";
    });
    On<Button>("frmCVLEDRect", "cmdBrwsFont").Push();

    Insert<clsPicture>();
    On<TextBox>("frmCVPicture", "txtImage").Type("on.bmp");
    const Subscription looking = dialog.Shown.Subscribe([&](DialogKind) {
        EXPECT_EQ(dialog.FileName + ' ' + std::to_string(dialog.Flags), "on.bmp 4100");
        EXPECT_TRUE(dialog.Filter.starts_with("All Picture Files|*.bmp;*.dib;"));
    });
    dialog.WillCancel();
    On<Button>("frmCVPicture", "cmdBrwsImage").Push();
    EXPECT_EQ(On<TextBox>("frmCVPicture", "txtImage").Text(), "on.bmp");
}

TEST(TheFontDialog, LeavesWhatItDoesNotShow)
{
    Font font;
    font.Charset = 2;
    font.Size = 97'500;
    font.SetWeight(500);
    const Font before = font;
    FakeDialog dialog;
    FontToDialog(font, dialog);
    EXPECT_EQ(dialog.FontSize, 9.75);
    FontFromDialog(dialog, font);
    EXPECT_EQ(font, before) << "picked again, it keeps its weight";
    dialog.FontSize = 8.25;
    dialog.FontBold = dialog.FontItalic = dialog.FontStrikethru = true;
    FontFromDialog(dialog, font);
    EXPECT_EQ(font.Size, 82'500);
    EXPECT_EQ(font.Weight(), 700);
    EXPECT_TRUE(font.Bold() && font.Italic && font.Strikethrough && !font.Underline);
    EXPECT_EQ(font.Charset, 2);
    dialog.FontSize = 1e300;
    EXPECT_THROW(FontFromDialog(dialog, font), Failure);
}

TEST_F(AnOddPage, TellsOfAPictureFileThatIsNotThereAndForgetsIt)
{
    auto& picture = Insert<clsPicture>();
    auto& field = On<TextBox>("frmCVPicture", "txtImage");
    field.Type("o");
    EXPECT_EQ(boxes.shown.back(), (ShownBox{"The image file could not be found:\no", "", BoxButtons::Ok}));
    EXPECT_EQ(picture.PictureFile() + field.Text(), "");
    field.Type("on.bmp");
    field.Type("");
    EXPECT_EQ(boxes.shown.size(), 1U) << "no file is no missing one";
    files.PutText("broken.bmp", "");
    reporter.Announce(Ref("frmCVPicture.txtImage"));
    field.Type("broken.bmp");
    EXPECT_EQ(picture.PictureFile(), "broken.bmp");

    auto& status = Insert<clsBoolPic>();
    On<TextBox>("frmCVBlnPic", "txtOnImage").Type("gone.bmp");
    EXPECT_EQ(status.ImageOn(), "gone.bmp") << "the picture that isn't shown isn't read";
    pictures.planned.Plan("load", 1, failures::pathNotFound);
    On<TextBox>("frmCVBlnPic", "txtOffImage").Type("x/off.bmp");
    EXPECT_EQ(boxes.shown.back().text, "The image file could not be found:\nx/off.bmp");

    Insert<clsCommand>();
    reporter.Announce(Ref("frmCVCommand.txtImage"));
    On<TextBox>("frmCVCommand", "txtImage").Type("gone.bmp");
    EXPECT_EQ(boxes.shown.size(), 2U) << "the command's field reports it as any failure";
}

TEST_F(AnOddPage, OfTheViewTriesEachTextAsAPictureAndFollowsTheDocument)
{
    auto& field = On<TextBox>("frmCVViewProps", "txtBGImage");
    field.Type("on.bm");
    EXPECT_EQ(field.Text() + main.View().BGPicture(), "on.bm") << "without a word";
    field.Type("on.bmp");
    EXPECT_EQ(main.View().BGPicture(), "on.bmp");
    dialog.WillOpen("other.bmp");
    On<Button>("frmCVViewProps", "cmdBrwsBGFile").Push();
    EXPECT_EQ(field.Text() + main.View().BGPicture(), "other.bmp") << "there is no such file";
    boxes.answers = {BoxAnswer::No};
    main.NewView();
    auto& name = On<TextBox>("frmCVViewProps", "txtViewName");
    EXPECT_EQ(name.Text(), "My View");
    name.Type("New");
    EXPECT_EQ(main.View().ViewName(), "New");
}

TEST_F(AnOddPage, OfAnyElementMovesItsHandlesAndTheStatus)
{
    const auto& led = Insert<clsLEDRound>();
    On<NumberField>("frmCVGeneral", "txtX").Type("100");
    EXPECT_TRUE(On<NumberField>("frmCVGeneral", "txtWidth").Type("6.67"));
    EXPECT_EQ(main.ssScroll().Handles()[7].left, 1500 + led.ObjWidth());
    EXPECT_EQ(main.abViewEdit().Tool("lblSelectedControl").Caption(),
              "X: 100     Y: 10     Width: 6.67     Height: 17");
    EXPECT_EQ(On<TextBox>("frmCVGeneral", "txtType").Text(), "LED (Round)");
}

// A number that a page shows and nobody touches keeps its bits: the sign of a zero, and those of a number that is none.
TEST_F(AnOddPage, KeepsTheBitsOfANumberThatNobodyTouched)
{
    auto& meter = Insert<clsMtrAngle>();
    auto& other = Insert<clsMtrAngle>();
    other.Set(&ScaleMeter::PosMin, 5);
    other.Set(&ScaleMeter::SectionEnd2, 5);
    for (const std::uint32_t bits : {0x80000000U, 0x7FC12345U, 0xFFA00001U, 0x7F800000U, 0x00000001U}) {
        const auto number = std::bit_cast<float>(bits);
        meter.Set(&ScaleMeter::PosMin, number);
        meter.Set(&ScaleMeter::SectionEnd2, number);
        meter.Set(&Element::ObjLeft, number);
        Select(other);
        Select(meter);
        for (const float kept : {meter.PosMin(), meter.SectionEnd2(), meter.ObjLeft()}) {
            EXPECT_EQ(std::bit_cast<std::uint32_t>(kept), bits);
        }
    }
}

TEST_F(AnOddPage, SaysWhichCharactersAViewFileCannotHold)
{
    Insert<clsLabel>();
    auto& caption = On<TextBox>("frmCVLabel", "txtCaption");
    const auto& warning = On<Label>("frmCVLabel", "lblBeyondtxtCaption");
    for (const auto& [text, words] : {std::pair{"Größe \xE2\x82\xAC?", ""},
                                      {"10 k\xCE\xA9 \xD0\x96\xCE\xA9", "A view file can't hold: \xCE\xA9\xD0\x96"},
                                      {"10 k", ""}}) {
        caption.Type(text);
        EXPECT_EQ(warning.Visible() ? warning.Caption() : "", words);
    }
}

} // namespace
