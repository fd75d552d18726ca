#include "support/error_report.h"

#include "base/failure.h"
#include "platform/forms.h"
#include "support/frm_error.h"
#include "tests/test.h"

namespace {

constexpr std::size_t lineLength = 237;

// Shows modal forms to a user who does one thing with them.
class OneUser final : public Forms {
public:
    std::function<void(frmError&)> does = [](frmError& form) { form.cmdOK.Push(); };
    int shown = 0;
    bool unloadedItself = false;

    void Show(Form&) override {}
    void Hide(Form&) override {}
    void UnloadAll() override {}
    void RunEvents() override {}
    void ShowModal(std::unique_ptr<Form> form) override
    {
        ++shown;
        form->Load();
        const Subscription end = form->Unloaded.Subscribe([this] { unloadedItself = true; });
        does(dynamic_cast<frmError&>(*form));
    }
};

struct AReporter : testing::Test {
    FakeFiles files;
    OneUser forms;
    FakeScreen screen;
    FakeClipboard clipboard;
    FakeClock clock;
    ErrorReporter reporter{{files, forms, screen, clipboard, clock}, "/program", "/user"};
    const ErrorReport report{"Unable to open the custom view file.", 6, "clsCustView", "Overflow", 14246};
};

TEST_F(AReporter, AppendsOneLineOfFixedColumnsAFailure)
{
    reporter.LogError(report);
    reporter.LogError({"Second", 13, "frmMain", "Type mismatch", 14001});
    const std::string log = files.Text("/program/error.log");
    EXPECT_EQ(log.substr(0, lineLength),
              "5/17/2024 9:03:07 AM  "
              "   Ref# 14246"
              "   Unable to open the custom view file.                                    "
              "   Source: clsCustView     "
              "   Err# 6          "
              "   Msg: Overflow                                                                "
              "\n");
    EXPECT_EQ(log.size(), 2 * lineLength);
    EXPECT_EQ(log.substr(lineLength + 20, 42), "     Ref# 14001   Second                  ");
}

TEST_F(AReporter, CutsWhatIsWiderThanItsColumn)
{
    clock.now = "Wednesday, 17 September 2024";
    reporter.LogError({std::string(80, 'm') + "X", -2147467259, "a_source_of_20_chars", std::string(80, 'd'), 123456});
    EXPECT_EQ(files.Text("/program/error.log"), "Wednesday, 17 Septembe   Ref# 12345   " + std::string(72, 'm') +
                                                    "   Source: a_source_of_20_c" +
                                                    "   Err# -2147467259   Msg: " + std::string(72, 'd') + "\n");
}

TEST_F(AReporter, CountsCharactersNotBytesAndKeepsAReportOnOneLine)
{
    reporter.LogError({"Größe\r\nzu groß", 6, "frm\nMain", "", 14001});
    const std::string log = files.Text("/program/error.log");
    EXPECT_NE(log.find("Größe  zu groß" + std::string(72 - 14, ' ') + "   Source: frm Main"), std::string::npos);
    EXPECT_EQ(log.find('\n'), log.size() - 1);
}

TEST_F(AReporter, LogsInTheUsersFolderWhereTheProgramsCannotBeWritten)
{
    files.SetReadOnly("/program/error.log");
    reporter.ShowError(report);
    EXPECT_FALSE(files.Has("/program/error.log"));
    EXPECT_EQ(files.Text("/user/error.log").size(), lineLength);
    files.SetReadOnly("/user/error.log");
    reporter.ShowError(report);
    EXPECT_EQ(forms.shown, 2);
}

TEST_F(AReporter, ReturnsWhateverFails)
{
    forms.does = [](frmError&) { throw Failure(failures::internal); };
    reporter.ShowError(report);
    EXPECT_EQ(forms.shown, 1);
    EXPECT_TRUE(files.Has("/program/error.log"));
}

TEST_F(AReporter, ShowsTheReportAndTakesAnHourglassOffTheScreen)
{
    screen.pointer = MousePointer::Hourglass;
    forms.does = [this](frmError& form) {
        EXPECT_EQ(screen.pointer, MousePointer::Default);
        EXPECT_EQ(form.Caption(), "Quor Custom View Editor");
        EXPECT_EQ(form.lblError.Caption(), "Unable to open the custom view file.");
        EXPECT_EQ(form.lblErrNum.Caption(), "6");
        EXPECT_EQ(form.lblRefNum.Caption(), "Ref# 14246");
        form.CancelButton()->Push();
    };
    reporter.ShowError(report);
    EXPECT_EQ(forms.shown, 1);
    EXPECT_TRUE(forms.unloadedItself);
}

TEST_F(AReporter, ShowsANegativeNumberByItsHexadecimalDigits)
{
    const std::pair<std::int32_t, const char*> cases[] = {
        {-2147467259, "80004005"}, {-1, "FFFFFFFF"}, {0, "0"}, {2147483647, "2147483647"}};
    for (const auto& each : cases) {
        forms.does = [&](frmError& form) { EXPECT_EQ(form.lblErrNum.Caption(), each.second); };
        reporter.ShowError({"m", each.first, "s", "d", 14001});
    }
    EXPECT_EQ(forms.shown, 4);
}

std::string VisibleDetails(const frmError& form)
{
    std::string names;
    for (const auto& control : form.Controls()) {
        names += control->Tag() == "Details" && control->Visible() ? control->Name() + " " : "";
    }
    return names;
}

TEST_F(AReporter, TogglesTheDetails)
{
    forms.does = [](frmError& form) {
        EXPECT_EQ(form.Height(), 2010);
        EXPECT_EQ(form.cmdDetails.Caption(), "&Details >>");
        EXPECT_EQ(VisibleDetails(form), "");
        form.cmdDetails.Push();
        EXPECT_EQ(form.Height(), 4130);
        EXPECT_EQ(form.cmdDetails.Caption(), "Hide &Details <<");
        EXPECT_EQ(VisibleDetails(form), "sspDivider lblErrorDetails(0) lblErrNum lblRefNum lblErrorDetails(1) "
                                        "lblErrSource lblErrorDetails(2) lblErrDescription ");
        form.cmdDetails.Push();
        EXPECT_EQ(form.Height(), 2010);
        EXPECT_EQ(VisibleDetails(form), "");
    };
    reporter.ShowError(report);
    EXPECT_EQ(forms.shown, 1);
}

TEST_F(AReporter, CopiesTheReportAndIgnoresAClipboardThatFails)
{
    forms.does = [](frmError& form) { form.cmdCopy.Push(); };
    reporter.ShowError({"Sentence", -1, "a source longer than its column", "Reason", 14117});
    EXPECT_EQ(clipboard.text, "Error Message: Sentence\nRef# 14117\nError Number: FFFFFFFF\n"
                              "Error Source: a source longer than its column\nError Description: Reason\n"
                              "Time: 5/17/2024 9:03:07 AM");
    clipboard.planned.Plan("set", 1);
    forms.does = [](frmError& form) { EXPECT_NO_THROW(form.cmdCopy.Push()); };
    reporter.ShowError(report);
    EXPECT_EQ(forms.shown, 2);
}

TEST(TheVersion, IsThreeNumbers)
{
    const std::string version = GetVersionText();
    int end = -1;
    std::sscanf(version.c_str(), "%*[0-9].%*[0-9].%*[0-9]%n", &end);
    EXPECT_EQ(end, static_cast<int>(version.size())) << version;
}

} // namespace
