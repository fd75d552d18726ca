// Where pages of elements and the view are odd.

#include "elements/bool_pic.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "elements/mtr_angle.h"
#include "elements/picture.h"
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
    On<Swatch>("frmCVLEDRound", "clrOff").Push();
    EXPECT_EQ(dialog.Color, Color{}) << "no dialog came, for its button is off";

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

TEST_F(AnOddPage, OfTheViewFollowsTheDocumentAndThatOfAnElementItsHandles)
{
    boxes.answers = {BoxAnswer::No};
    On<TextBox>("frmCVViewProps", "txtViewName").Type("Old");
    main.NewView();
    EXPECT_EQ(On<TextBox>("frmCVViewProps", "txtViewName").Text(), "My View");
    On<TextBox>("frmCVViewProps", "txtViewName").Type("New");
    EXPECT_EQ(main.View().ViewName(), "New");

    const auto& led = Insert<clsLEDRound>();
    On<NumberField>("frmCVGeneral", "txtX").Type("100");
    EXPECT_EQ(main.ssScroll().Handles()[7].left, 1500 + led.ObjWidth());
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
