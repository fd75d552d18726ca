#include "pages/font_dialog.h"

#include "base/failure.h"
#include "base/values.h"
#include "tests/test.h"

namespace {

Font MediumFont()
{
    Font font;
    font.Name = "Arial";
    font.Size = 97'500;
    font.Charset = 2;
    font.Underline = true;
    font.SetWeight(500);
    return font;
}

TEST(TheFontDialog, KeepsCharsetAndWeightOfAFontThatIsPickedAgain)
{
    const Font before = MediumFont();
    Font font = before;
    FakeDialog dialog;
    FontToDialog(font, dialog);
    EXPECT_EQ(dialog.FontSize, 9.75);
    EXPECT_FALSE(dialog.FontBold);
    FontFromDialog(dialog, font);
    EXPECT_EQ(font, before);
}

TEST(TheFontDialog, BringsBackWhatWasPicked)
{
    Font font = MediumFont();
    FakeDialog dialog;
    dialog.FontName = "Courier";
    dialog.FontSize = 8.25;
    dialog.FontBold = dialog.FontItalic = dialog.FontStrikethru = true;
    FontFromDialog(dialog, font);
    EXPECT_EQ(font.Name, "Courier");
    EXPECT_EQ(font.Size, 82'500);
    EXPECT_EQ(font.Weight(), 700);
    EXPECT_TRUE(font.Bold() && font.Italic && font.Strikethrough && !font.Underline);
    EXPECT_EQ(font.Charset, 2);
    dialog.FontSize = 1e300;
    EXPECT_THROW(FontFromDialog(dialog, font), Failure);
}

} // namespace
