#include "platform/system_info.h"
#include "support/frm_about.h"
#include "support/frm_system_info.h"
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
