#include "platform/system_info.h"
#include "support/frm_about.h"
#include "support/frm_options.h"
#include "support/frm_system_info.h"
#include "support/grid_host.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_clipboard.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_settings.h"
#include "tests/support/fake_system_info.h"
#include "tests/support/fake_timers.h"
#include "tests/support/test_reporter.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// A grid that tells what is asked of it.
struct TracedGrid final : GridHost {
    std::int16_t size = 10;
    bool isVisible = true;
    bool showFails = false;
    std::string calls;

    std::int16_t GridSize() const noexcept override { return size; }
    void SetGridSize(std::int16_t pixels) noexcept override
    {
        size = pixels;
        calls += "size " + std::to_string(pixels) + ' ';
    }
    bool GridVisible() const noexcept override { return isVisible; }
    void LoadGrid() override { calls += "load "; }
    void HideGrid() override { calls += "hide "; }
    void ShowGrid() override
    {
        calls += "show ";
        if (showFails) {
            throw Failure(failures::outOfMemory);
        }
    }
};

struct Dialogs : testing::Test {
    FakeTimers timers;
    FakeForms forms{timers};
    FakeBoxes boxes;
    FakeSettings settings;
    FakeHelp help;
    FakeScreen screen;
    FakeSystemInfo systemInfo;
    TestReporter reporter;
    TracedGrid grid;

    frmOptions& ShowOptions()
    {
        forms.ShowModal(std::make_unique<frmOptions>(frmOptions::Ports{settings, help, screen, reporter, grid}));
        return dynamic_cast<frmOptions&>(*forms.Find("frmOptions"));
    }
};

TEST_F(Dialogs, OptionsBuildTheGridAnewOnlyWhereItShowsAndHasAnotherPitch)
{
    struct {
        double typed;
        bool isVisible;
        std::string calls;
    } const cases[] = {{10, true, ""}, {25, true, "size 25 hide load show "}, {25, false, "size 25 "}, {10, false, ""}};
    for (const auto& expected : cases) {
        grid.size = 10;
        grid.isVisible = expected.isVisible;
        grid.calls.clear();
        settings.gridSize = 10;
        frmOptions& options = ShowOptions();
        options.txtGridSize.Value(expected.typed);
        options.cmdOK.Push();
        EXPECT_EQ(grid.calls, expected.calls);
        EXPECT_EQ(settings.gridSize, expected.typed);
        EXPECT_FALSE(forms.IsAnyShown());
    }
    EXPECT_EQ(settings.planned.Calls("write"), 4);
}

TEST_F(Dialogs, OptionsStayOpenAfterAFailureThatTheirOKMeets)
{
    frmOptions& options = ShowOptions();
    options.txtGridSize.Value(33);
    grid.showFails = true;
    reporter.Announce(Ref("frmOptions.cmdOK"));
    options.cmdOK.Push();
    EXPECT_EQ(reporter.reports.front().number, failures::outOfMemory);
    EXPECT_NE(forms.Find("frmOptions"), nullptr);
    EXPECT_EQ(grid.size, 33);
    options.cmdHelp.Push();
    settings.helpFile = "help/index.html";
    options.cmdHelp.Push();
    EXPECT_EQ(help.shown, (std::vector<std::string>{"", "help/index.html"}));
    options.cmdCancel.Push();
    EXPECT_FALSE(forms.IsAnyShown());
}

TEST_F(Dialogs, AboutShowsWhatThePlatformKnows)
{
    systemInfo.facts = {{"System", "A"}, {"Screen", "800 x 600"}};
    forms.ShowModal(std::make_unique<frmAbout>(frmAbout::Ports{forms, boxes, systemInfo}));
    Form& about = *forms.Find("frmAbout");
    about.Item<Button>("cmdSysInfo").Push();
    Form* info = forms.Find("frmSystemInfo");
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->Item<Label>("lblFact(1)").Caption(), "Screen:");
    TextBox& value = info->Item<TextBox>("txtFact(1)");
    value.Type("lie");
    EXPECT_EQ(value.Text(), "800 x 600");
    info->CancelButton()->Push();
    EXPECT_EQ(forms.Find("frmSystemInfo"), nullptr);
    EXPECT_EQ(forms.Find("frmAbout"), &about);
    about.DefaultButton()->Push();
    EXPECT_FALSE(forms.IsAnyShown());
}

} // namespace
} // namespace quor
