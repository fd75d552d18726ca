#include "support/frm_about.h"
#include "support/frm_system_info.h"
#include "support/frm_view_pbar.h"
#include "tests/test.h"

namespace {

struct Dialogs : testing::Test {
    FakeTimers timers;
    FakeForms forms{timers};
    FakeBoxes boxes;
    FakeSystemInfo systemInfo;
};

TEST_F(Dialogs, AboutShowsWhatThePlatformKnows)
{
    systemInfo.facts = {{"System", "A"}, {"Screen", "800 x 600"}};
    forms.ShowModal(std::make_unique<frmAbout>(frmAbout::Ports{forms, boxes, systemInfo}));
    forms.Find("frmAbout")->Item<Button>("cmdSysInfo").Push();
    Form& info = *forms.Find("frmSystemInfo");
    EXPECT_EQ(info.Item<Label>("lblFact(1)").Caption(), "Screen:");
    TextBox& value = info.Item<TextBox>("txtFact(1)");
    value.Type("lie");
    EXPECT_EQ(value.Text(), "800 x 600");
    info.CancelButton()->Push();
    EXPECT_EQ(forms.Find("frmSystemInfo"), nullptr);
    forms.Find("frmAbout")->DefaultButton()->Push();
    EXPECT_FALSE(forms.IsAnyShown());
}

struct FailingLoop final : Forms {
    int runs = 0;

    void Show(Form&) override {}
    void ShowModal(std::unique_ptr<Form>) override {}
    void Hide(Form&) override {}
    void UnloadAll() override {}
    void RunEvents() override
    {
        ++runs;
        throw Failure(failures::internal);
    }
};

TEST(TheProgress, KeepsToItsRangeAndBeginsAnewAtEachLoad)
{
    FailingLoop loop;
    frmViewPBar form(loop);
    int ends = 0;
    const Subscription end = form.Unloaded.Subscribe([&] { ++ends; });
    form.Begin("a", 10, false);
    form.InitPBar("b", -3);
    EXPECT_EQ(form.lblStatus.Caption(), "b");
    EXPECT_EQ(form.pbrConfig.Maximum(), 10);
    for (const std::int32_t value : {9, 11, -1}) {
        form.SetProgBar(value);
        EXPECT_EQ(form.pbrConfig.Value(), 9);
    }
    form.IncrProgBar();
    form.IncrProgBar();
    EXPECT_EQ(form.pbrConfig.Value(), 10);
    EXPECT_EQ(loop.runs, 2);
    form.CloseMe();
    form.CloseMe();
    EXPECT_EQ(ends, 1);
    form.Begin("c", 10, false);
    EXPECT_EQ(form.pbrConfig.Value(), 0);
}

} // namespace
