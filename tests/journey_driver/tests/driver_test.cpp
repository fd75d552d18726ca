#include "tests/journey_driver/journey.h"
#include "tests/test.h"

namespace {

std::string ErrorOf(const std::string& text)
{
    try {
        Play(ReadJourney(text), "a.journey", true);
    } catch (const JourneyError& error) {
        return error.what();
    }
    return "none";
}

TEST(AJourney, NamesTheLineThatCannotBeDone)
{
    const std::string begin = "login on 15\nstart\nwait 100\n";
    for (const char* line : {"wait \"a", "wait \"5\"b", "wait a\"b\"", ">a", ">?a", "fly", "\"start\"", "wait",
                             "wait soon", "wait -1", "print wings", "press canvas 1", "press handle:8 1 1",
                             "fail files.open 0", "tool miFly", "start", "set frmNone.txtX 1", "file a hex 123"}) {
        EXPECT_EQ(ErrorOf(begin + line).substr(0, 3), "4: ") << line;
    }
    EXPECT_EQ(ErrorOf("editor\nkey 46\nwait 10\nwait 0\nprint page frmError").substr(0, 3), "5: ") << "it was read";
}

TEST(AJourney, GoesOnBehindADifference)
{
    const std::string differences = Play(
        ReadJourney("login off\nstart\n> main form\nlogon false\n> ended\nprint files\n> \"a*\"\n"), "a.journey", true);
    EXPECT_EQ(differences.find("a.journey:3: "), 0U) << differences;
    EXPECT_EQ(differences.find("a.journey:5: "), std::string::npos) << differences;
    EXPECT_NE(differences.find("a.journey:7: "), std::string::npos) << differences;
}

TEST(ABlockOfAnswers, SaysWhatIsNotMet)
{
    struct Case {
        std::string block; // an expected line each, as a journey has them
        std::vector<AnswerLine> lines;
        std::string marked; // the first line that isn't met
    };
    const std::vector<AnswerLine> ab{{"a"}, {"b"}};
    const Case cases[] = {
        {"> a\n> b", ab, ""},
        {"> b\n> a", ab, "> b"},
        {"> a", ab, "and nothing more"},
        {"> a\n> b\n> c", ab, "> c"},
        {">> b", {{"b"}, {"a"}, {"b"}}, ""},
        {"> a\n> *\n> a", ab, "> a"},
        {">? b\n>? a", ab, ""},
        {">? *", {}, ">? *"},
        {">! b*", ab, ">! b*"},
        {"> *\n>? a\n>! c", ab, ""},
        {"> \"b*\"", {{"bc", true}}, ""},
        {"> \"a\"", {{"a"}}, "> \"a\""},
        {"> *b*b*", {{"acb"}}, "> *b"},
        {"> a*c", {{"abcbc"}}, ""},
        {"> {2}x*{1}", {{"abx"}}, "> {2}"},
        {"> {1}{a} {2", {{"\xC3\xA4{a} {2"}}, ""},
        {"> *\xA4", {{"\xC3\xA4"}}, "> *"},
    };
    for (const Case& each : cases) {
        const std::string difference = Difference(ReadJourney(each.block)[0].answers, each.lines);
        const std::size_t mark = difference.find("  * ");
        EXPECT_EQ(mark == std::string::npos ? "" : difference.substr(mark + 4, each.marked.size()), each.marked)
            << each.block << '\n'
            << difference;
    }
}

} // namespace
