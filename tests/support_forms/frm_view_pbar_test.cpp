#include "support/frm_view_pbar.h"

#include "base/failure.h"
#include "platform/forms.h"
#include "tests/test.h"

namespace {

struct Loop final : Forms {
    int runs = 0;
    bool fails = false;

    void Show(Form&) override {}
    void ShowModal(std::unique_ptr<Form>) override {}
    void Hide(Form&) override {}
    void UnloadAll() override {}
    void RunEvents() override
    {
        ++runs;
        if (fails) {
            throw Failure(failures::internal);
        }
    }
};

TEST(TheProgress, StepsToItsMaximumAndRunsTheLoopAtEachStep)
{
    Loop loop;
    frmViewPBar form(loop);
    form.Load();
    form.InitPBar("Loading custom view...", 2);
    for (int step = 0; step < 3; ++step) {
        form.IncrProgBar();
    }
    EXPECT_EQ(form.lblStatus.Caption(), "Loading custom view...");
    EXPECT_EQ(form.pbrConfig.Maximum(), 2);
    EXPECT_EQ(form.pbrConfig.Value(), 2);
    EXPECT_EQ(loop.runs, 3);
}

TEST(TheProgress, ChangesNothingAtAValueOutOfItsRange)
{
    Loop loop;
    frmViewPBar form(loop);
    form.InitPBar("a", 10);
    form.SetProgBar(7);
    form.SetProgBar(11);
    form.SetProgBar(-1);
    EXPECT_EQ(form.pbrConfig.Value(), 7);
    form.InitPBar("b", -3);
    EXPECT_EQ(form.lblStatus.Caption(), "b");
    EXPECT_EQ(form.pbrConfig.Maximum(), 10);
    loop.fails = true;
    form.IncrProgBar();
    EXPECT_EQ(form.pbrConfig.Value(), 8);
}

TEST(TheProgress, BeginsAnewAtEachLoad)
{
    Loop loop;
    frmViewPBar form(loop);
    int ends = 0;
    const Subscription end = form.Unloaded.Subscribe([&] { ++ends; });
    form.Load();
    form.InitPBar("a", 10);
    form.SetProgBar(7);
    form.CloseMe();
    form.CloseMe();
    EXPECT_EQ(ends, 1);
    form.Load();
    EXPECT_EQ(form.pbrConfig.Value(), 0);
}

} // namespace
