#include "support/error_report.h"

#include "support/frm_error.h"
#include "tests/test.h"

namespace {

struct AReporter : testing::Test {
    FakeFiles files;
    FakeTimers timers;
    FakeForms forms{timers};
    FakeScreen screen;
    FakeClipboard clipboard;
    FakeClock clock;
    ErrorReporter reporter{{files, forms, screen, clipboard, clock}, "/program", "/user"};
    const ErrorReport report{"Unable to open the custom view file.", -1, "clsCustView", "Overflow", 14246};
};

TEST_F(AReporter, AppendsOneLineOfFixedColumnsAFailure)
{
    reporter.LogError(report);
    clock.now = "Wednesday, 17 September 2024";
    reporter.LogError({"Größe\r\nzu groß", -2147467259, "a_source\nof_20_chars", std::string(80, 'd'), 123456});
    const auto blanks = [](std::size_t count) { return std::string(count, ' '); };
    EXPECT_EQ(files.Text("/program/error.log"),
              "5/17/2024 9:03:07 AM     Ref# 14246   Unable to open the custom view file." + blanks(36) +
                  "   Source: clsCustView        Err# -1            Msg: Overflow" + blanks(64) +
                  "\nWednesday, 17 Septembe   Ref# 12345   Größe  zu groß" + blanks(58) +
                  "   Source: a_source of_20_c   Err# -2147467259   Msg: " + std::string(72, 'd') + '\n');
}

TEST_F(AReporter, ReturnsWhateverFails)
{
    const Subscription failing = forms.ModalShown.Subscribe([](Form&) { throw Failure(failures::internal); });
    files.SetReadOnly("/program/error.log");
    reporter.ShowError(report);
    EXPECT_FALSE(files.Has("/program/error.log"));
    EXPECT_EQ(files.Text("/user/error.log").size(), 237U);
    files.SetReadOnly("/user/error.log");
    reporter.ShowError(report);
    EXPECT_EQ(files.Text("/user/error.log").size(), 237U);
}

TEST_F(AReporter, ShowsItsDetailsOnDemandAndANegativeNumberByItsHexadecimalDigits)
{
    reporter.ShowError(report);
    auto& form = dynamic_cast<frmError&>(*forms.Find("frmError"));
    EXPECT_EQ(form.Caption(), "Quor Custom View Editor");
    EXPECT_EQ(form.lblErrNum.Caption(), "FFFFFFFF");
    for (const bool areShown : {false, true, false}) {
        EXPECT_EQ(form.Height(), areShown ? 4130 : 2010);
        std::string hidden;
        for (const auto& control : form.Controls()) {
            hidden += control->Visible() ? "" : control->Name() + ' ';
        }
        EXPECT_EQ(hidden, areShown ? ""
                                   : "sspDivider lblErrorDetails(0) lblErrNum lblRefNum lblErrorDetails(1) "
                                     "lblErrSource lblErrorDetails(2) lblErrDescription ");
        form.cmdDetails.Push();
    }
    form.CancelButton()->Push();
    EXPECT_EQ(forms.Find("frmError"), nullptr);
}

} // namespace
