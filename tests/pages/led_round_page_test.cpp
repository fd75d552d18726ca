#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

constexpr std::string_view page = "frmCVLEDRound";

using ALampPage = EditorFixture;

TEST_F(ALampPage, KeepsTheSwatchCaptionBetweenTwoLampsWhoseOffColourIsAutomatic)
{
    auto& first = Insert<clsLEDRound>();
    auto& second = Insert<clsLEDRound>();
    second.Set(&clsLEDRound::ColorInactive, Color{0x778899});
    const auto& off = On<Swatch>(page, "clrOff");
    Select(first);
    EXPECT_EQ(off.Caption(), "N/A");
    Select(second);
    // The box doesn't change, so its handler doesn't run and the swatch shows a colour under the words.
    EXPECT_EQ(off.Caption(), "N/A");
    EXPECT_EQ(off.BackColor(), Color{0x778899});
    EXPECT_FALSE(On<Button>(page, "cmdBrwsOffColor").Enabled());
}

TEST_F(ALampPage, TakesNoClickOnASwatchWhoseButtonIsOffAndWritesTheOldColourOnCancel)
{
    auto& led = Insert<clsLEDRound>();
    On<Swatch>(page, "clrOff").Push();
    EXPECT_EQ(dialog.Color, Color{}) << "no dialog came";
    const std::int32_t before = main.GetCurrentChecksum();
    dialog.WillCancel();
    On<Swatch>(page, "clrOn").Push();
    EXPECT_EQ(dialog.Color, led.ColorActive());
    EXPECT_EQ(main.GetCurrentChecksum(), before);
}

} // namespace
