#include "tests/journey_driver/journey.h"
#include "tests/test.h"

namespace {

std::string ErrorOf(std::string_view text)
{
    try {
        Play(ReadJourney(text), "a.journey", true);
    } catch (const JourneyError& error) {
        return error.what();
    }
    return "none";
}

TEST(AJourney, IsReadAsStepsAndBlocks)
{
    const Journey journey = ReadJourney(
        "# told\r\n\n  x  \"a b\" \t [1, \"] \\\"\"] [c\r\n> one *\n\n# more\n>? two\n>!  three\n>\nwait 5");
    ASSERT_EQ(journey.size(), 3U);
    EXPECT_EQ(journey[0].line, 3);
    std::string words;
    for (const Word& word : journey[0].words) {
        words += word.text + (word.isQuoted ? "|q|" : "|");
    }
    EXPECT_EQ(words, "x|a b|q|[1, \"] \\\"\"]|[c|");
    std::string answers;
    for (const Expected& answer : journey[1].answers) {
        answers += std::to_string(static_cast<int>(answer.kind)) + answer.pattern + '|';
    }
    EXPECT_EQ(answers, "0one *|1two|2 three|0|");
    EXPECT_EQ(ReadJourney(R"(x "\"\\\/\b\f\n\r\t\u0041\u20AC\ud83d\ude00")")[0].words[1].text,
              "\"\\/\b\f\n\r\tA\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(AJourney, NamesTheLineThatCannotBeDone)
{
    const std::string begin = "login on 15\nstart\nwait 100\n";
    for (const char* line : {"wait \"a",
                             "wait \"5\"b",
                             "wait a\"b\"",
                             "wait \"\\ud800\"",
                             ">a",
                             ">?a",
                             "fly",
                             "\"start\"",
                             "wait",
                             "wait soon",
                             "wait -1",
                             "print wings",
                             "setting Colour 1",
                             "fail files.open 0",
                             "fail files.fly 1",
                             "close slowly",
                             "press canvas 1",
                             "press \"LED\" 1 1",
                             "press handle:8 1 1",
                             "tool miFly",
                             "print page frmNone",
                             "print file none",
                             "start",
                             "set frmNone.txtX 1",
                             "file a from nowhere.qvw",
                             "file a hex 123",
                             "delete none"}) {
        EXPECT_EQ(ErrorOf(begin + line).substr(0, 3), "4: ") << line;
    }
}

TEST(AJourney, GoesOnBehindADifference)
{
    const std::string differences = Play(
        ReadJourney("login off\nstart\n> main form\nlogon false\n> ended\nprint files\n> \"a*\"\n"), "a.journey", true);
    EXPECT_EQ(differences.find("a.journey:3: "), 0U) << differences;
    EXPECT_EQ(differences.find("a.journey:5: "), std::string::npos) << differences;
    EXPECT_NE(differences.find("a.journey:7: "), std::string::npos) << differences;
}

TEST(APattern, MatchesALine)
{
    struct Case {
        const char* pattern;
        const char* line;
        bool matches;
    };
    const Case cases[] = {
        {"", "a", false},
        {"*", "", true},
        {"a*c", "abcbc", true},
        {"a*c", "abcb", false},
        {"*b*b*", "acb", false},
        {"{3}", "abcd", false},
        {"{2}x*{1}", "abx", false},
        {"{2}x*{1}", "abxyz", true},
        {"*\xA4", "\xC3\xA4", false},
        {"{a} {2", "{a} {2", true},
        {"{-1}", "{-1}", true},
        {"a", "A", false},
        {"{4}|", "\xC3\xA4\xC3\xB6\xE2\x82\xACz|", true},
        {"(*.qvw)|*.qvw", "(*.qvw)|*.qvw", true},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(MatchesLine(each.pattern, each.line), each.matches) << each.pattern << " on " << each.line;
    }
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
        {"> *", {}, ""},
        {"> **", ab, "and nothing more"},
        {"> *\n> b", {{"b"}, {"a"}, {"b"}}, ""},
        {"> a\n> *\n> a", ab, "> a"},
        {">? b\n>? a", ab, ""},
        {">? c", ab, ">? c"},
        {">? *", {}, ">? *"},
        {">! b*", ab, ">! b*"},
        {">! *", {}, ""},
        {"> *\n>? a\n>! c", ab, ""},
        {"> a\n> \"b*\"", {{"a"}, {"bc", true}}, ""},
        {"> \"a\"", {{"a"}}, "> \"a\""},
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
