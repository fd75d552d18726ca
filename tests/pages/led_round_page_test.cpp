#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"

#include <functional>

namespace quor {
namespace {

constexpr std::string_view page = "frmCVLEDRound";

struct LampRow {
    const char* control;
    std::function<void(EditorFixture&)> act;
    std::function<bool(const clsLEDRound&)> isWritten;
};

const LampRow rows[] = {
    {"cboBevelStyle", [](EditorFixture& f) { f.On<ListBox>(page, "cboBevelStyle").Choose(1); },
     [](const clsLEDRound& led) { return led.BevelStyle() == 1; }},
    {"cmdBrwsOnColor",
     [](EditorFixture& f) {
         f.dialog.WillPickColor(Color{0x112233});
         f.On<Swatch>(page, "clrOn").Push();
     },
     [](const clsLEDRound& led) { return led.ColorActive() == Color{0x112233}; }},
    {"chkAutoOffColor", [](EditorFixture& f) { f.On<CheckBox>(page, "chkAutoOffColor").Toggle(); },
     [](const clsLEDRound& led) { return !led.AutoInactive(); }},
    {"cmdBrwsOffColor",
     [](EditorFixture& f) {
         f.dialog.WillPickColor(Color{0x445566});
         f.On<Button>(page, "cmdBrwsOffColor").Push();
     },
     [](const clsLEDRound& led) { return led.ColorInactive() == Color{0x445566}; }},
    {"chkReflection", [](EditorFixture& f) { f.On<CheckBox>(page, "chkReflection").Toggle(); },
     [](const clsLEDRound& led) { return !led.Reflection(); }},
};

using ALampPage = EditorFixture;

TEST_F(ALampPage, WritesEachControlThroughAtOnceAndReadsItBack)
{
    auto& first = Insert<clsLEDRound>();
    for (const LampRow& row : rows) {
        EXPECT_FALSE(row.isWritten(first)) << row.control;
        row.act(*this);
        EXPECT_TRUE(row.isWritten(first)) << row.control;
    }
    Insert<clsLEDRound>();
    Select(first);
    EXPECT_EQ(On<ListBox>(page, "cboBevelStyle").ListIndex(), 1);
    EXPECT_EQ(On<Swatch>(page, "clrOn").BackColor(), Color{0x112233});
    EXPECT_EQ(On<Swatch>(page, "clrOff").BackColor(), Color{0x445566});
    EXPECT_FALSE(On<CheckBox>(page, "chkReflection").Value());
    EXPECT_FALSE(On<CheckBox>(page, "chkAutoOffColor").Value());
}

TEST_F(ALampPage, ReportsAFailureUnderTheNumberOfTheControl)
{
    Insert<clsLEDRound>();
    On<CheckBox>(page, "chkAutoOffColor").Toggle();
    main.Panel().FindPage(page)->ClearOwner();
    for (const LampRow& row : rows) {
        reporter.Announce(FindRef(page, row.control));
        row.act(*this);
        EXPECT_EQ(reporter.reports.back().message,
                  "An error occurred while setting the property value. Please try again.");
    }
    EXPECT_EQ(reporter.reports.size(), std::size(rows));
}

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
} // namespace quor
