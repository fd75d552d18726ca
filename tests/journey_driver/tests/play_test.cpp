#include "tests/journey_driver/play.h"
#include "tests/test.h"

namespace {

std::string Differences(std::string_view text)
{
    return Play(ReadJourney(text), "a.journey", true);
}

std::string ErrorOf(std::string_view text)
{
    try {
        Differences(text);
    } catch (const JourneyError& error) {
        return error.what();
    }
    return "none";
}

TEST(AJourneyOfTheProgram, HoldsWhereItAnswersAsExpected)
{
    EXPECT_EQ(Differences("login off\nstart\n> splash \"Loading *\"\nwait 100\n>! *\nlogon false\n> ended"), "");
}

TEST(AJourneyOfTheProgram, GoesOnBehindADifference)
{
    const std::string differences = Differences("login off\nstart\n> main form\nlogon false\n> main form\n");
    EXPECT_EQ(differences.find("a.journey:3: "), 0U) << differences;
    EXPECT_NE(differences.find("a.journey:5: "), std::string::npos) << differences;
}

TEST(AJourneyOfTheProgram, IsNotBegunWithAStepThatIsNone)
{
    for (const char* step : {"fly", "\"start\"", "wait", "wait soon", "print", "print wings", "print elements now",
                             "setting Colour 1", "fail files.open 0", "fail files.fly 1", "answer maybe",
                             "trace all on", "press canvas 1", "close slowly", "dialog print a", "login maybe"}) {
        EXPECT_EQ(ErrorOf("start\n> nothing of this\n" + std::string(step)).substr(0, 3), "3: ") << step;
    }
}

TEST(AJourneyOfTheProgram, NamesTheLineThatCannotBeDone)
{
    const std::string begin = "login on 15\nstart\nwait 100\n";
    for (const char* step : {"press \"LED\" 1 1", "press handle:8 1 1", "press toolbox:11 1 1", "tool miFly",
                             "print element \"LED\"", "print page frmNone", "print file none", "start",
                             "set frmNone.txtX 1", "file a from nowhere.qvw", "file a hex 123", "delete none"}) {
        EXPECT_EQ(ErrorOf(begin + step).substr(0, 3), "4: ") << step;
    }
    EXPECT_EQ(ErrorOf("tool miNew").substr(0, 3), "1: ");
}

TEST(AJourneyOfTheProgram, KeepsAReportOpenForStepsThatSpeakOfIt)
{
    const std::string begin = "login on 15\nstart\nwait 100\nkey 46\nwait 10\n> *\n";
    EXPECT_EQ(Differences(begin + "print page frmError lblErrNum\n> control lblErrNum value \"91\" *\n"), "");
    EXPECT_EQ(ErrorOf(begin + "wait 1\nprint page frmError").substr(0, 3), "8: ");
}

} // namespace
