#include "tests/journey_driver/answers.h"

#include "tests/support/quoted.h"
#include "tests/test.h"

#include <initializer_list>

namespace {

using Kind = Expected::Kind;
// Bare texts, one a line.
std::vector<AnswerLine> Texts(std::initializer_list<const char*> texts)
{
    std::vector<AnswerLine> lines;
    for (const char* text : texts) {
        lines.push_back({text, Quoted(text)});
    }
    return lines;
}

std::vector<AnswerLine> Lines(std::initializer_list<const char*> texts)
{
    std::vector<AnswerLine> lines = Texts(texts);
    for (AnswerLine& line : lines) {
        line.quoted.clear();
    }
    return lines;
}

TEST(APattern, MatchesALine)
{
    struct Case {
        const char* pattern;
        const char* line;
        bool matches;
    };
    const Case cases[] = {
        {"", "", true},
        {"", "a", false},
        {"*", "", true},
        {"*", "any thing", true},
        {"a*", "a", true},
        {"a*c", "abcbc", true},
        {"a*c", "abcb", false},
        {"*b*b*", "abcb", true},
        {"*b*b*", "acb", false},
        {"{3}", "abc", true},
        {"{3}", "ab", false},
        {"{3}", "abcd", false},
        {"{0}a", "a", true},
        {"{2}x*{1}", "abx", false},
        {"{2}x*{1}", "abxyz", true},
        {"{4}|", "\xC3\xA4\xC3\xB6\xE2\x82\xACz|", true},
        {"*\xA4", "\xC3\xA4", false},
        {"{}", "{}", true},
        {"{a} {2", "{a} {2", true},
        {"{ 2}", "{ 2}", true},
        {"{-1}", "{-1}", true},
        {"a", "A", false},
        {"dialog (*.qvw)|*.qvw", "dialog (*.qvw)|*.qvw", true},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(MatchesLine(each.pattern, each.line), each.matches) << each.pattern << " on " << each.line;
    }
}

TEST(ABlockOfAnswers, HoldsOrDoesNot)
{
    const auto line = [](const char* pattern) { return Expected{Kind::InOrder, pattern}; };
    const auto among = [](const char* pattern) { return Expected{Kind::Among, pattern}; };
    const auto never = [](const char* pattern) { return Expected{Kind::Never, pattern}; };
    struct Case {
        std::vector<Expected> block;
        std::vector<AnswerLine> lines;
        bool holds;
    };
    const Case cases[] = {
        {{line("a"), line("b")}, Lines({"a", "b"}), true},
        {{line("a"), line("b")}, Lines({"b", "a"}), false},
        {{line("a"), line("b")}, Lines({"a"}), false},
        {{line("a")}, Lines({"a", "b"}), false},
        {{line("a")}, Lines({}), false},
        {{line("*")}, Lines({}), true},
        {{line("a"), line("*"), line("c")}, Lines({"a", "b", "b", "c"}), true},
        {{line("a"), line("*"), line("c")}, Lines({"a", "c"}), true},
        {{line("a"), line("*"), line("c")}, Lines({"a", "c", "d"}), false},
        {{line("*"), line("a*"), line("b"), line("*")}, Lines({"a1", "a2", "b"}), true},
        {{line("**")}, Lines({"one line"}), true},
        {{line("**")}, Lines({"two", "lines"}), false},
        {{among("b")}, Lines({"a", "b"}), true},
        {{among("b"), among("a")}, Lines({"a", "b"}), true},
        {{among("b")}, Lines({"a"}), false},
        {{among("*")}, Lines({}), false},
        {{never("b*")}, Lines({"a"}), true},
        {{never("b*")}, Lines({"a", "bc"}), false},
        {{never("*")}, Lines({}), true},
        {{never("*")}, Lines({""}), false},
        {{line("a"), never("b")}, Lines({"a"}), true},
        {{line("*"), among("b"), never("c")}, Lines({"a", "b"}), true},
        {{line("*"), among("b"), never("c")}, Lines({"b", "c"}), false},
        {{line("a"), among("b")}, Lines({"a", "b"}), false},
        {{line("a"), line("\"b*\"")}, Texts({"a", "bc"}), true},
        {{line("\"a\"")}, Lines({"a"}), false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(Difference(each.block, each.lines).empty(), each.holds) << Difference(each.block, each.lines);
    }
}

TEST(ADifference, ShowsBothAndMarksWhatIsNotMet)
{
    EXPECT_EQ(Difference({{Kind::InOrder, "a"}, {Kind::InOrder, "b*"}, {Kind::Never, "x"}}, Lines({"a", "c", "d"})),
              "  expected\n    > a\n  * > b*\n    >! x\n  came\n    a\n    c\n    d\n");
    EXPECT_EQ(Difference({{Kind::InOrder, "a"}}, Lines({"a", "b"})),
              "  expected\n    > a\n  * and nothing more\n  came\n    a\n    b\n");
    EXPECT_EQ(Difference({{Kind::Among, "a"}}, {}), "  expected\n  * >? a\n  came\n    nothing\n");
}

} // namespace
