#include "tests/journey_driver/answers.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

using Kind = Expected::Kind;
using Lines = std::vector<std::string>;

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
        Lines lines;
        bool holds;
    };
    const Case cases[] = {
        {{line("a"), line("b")}, {"a", "b"}, true},
        {{line("a"), line("b")}, {"b", "a"}, false},
        {{line("a"), line("b")}, {"a"}, false},
        {{line("a")}, {"a", "b"}, false},
        {{line("a")}, {}, false},
        {{line("*")}, {}, true},
        {{line("a"), line("*"), line("c")}, {"a", "b", "b", "c"}, true},
        {{line("a"), line("*"), line("c")}, {"a", "c"}, true},
        {{line("a"), line("*"), line("c")}, {"a", "c", "d"}, false},
        {{line("*"), line("a*"), line("b"), line("*")}, {"a1", "a2", "b"}, true},
        {{line("**")}, {"one line"}, true},
        {{line("**")}, {"two", "lines"}, false},
        {{among("b")}, {"a", "b"}, true},
        {{among("b"), among("a")}, {"a", "b"}, true},
        {{among("b")}, {"a"}, false},
        {{among("*")}, {}, false},
        {{never("b*")}, {"a"}, true},
        {{never("b*")}, {"a", "bc"}, false},
        {{never("*")}, {}, true},
        {{never("*")}, {""}, false},
        {{line("a"), never("b")}, {"a"}, true},
        {{line("*"), among("b"), never("c")}, {"a", "b"}, true},
        {{line("*"), among("b"), never("c")}, {"b", "c"}, false},
        {{line("a"), among("b")}, {"a", "b"}, false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(Difference(each.block, each.lines).empty(), each.holds)
            << testing::PrintToString(each.lines) << Difference(each.block, each.lines);
    }
}

TEST(ADifference, ShowsBothAndMarksWhatIsNotMet)
{
    EXPECT_EQ(Difference({{Kind::InOrder, "a"}, {Kind::InOrder, "b*"}, {Kind::Never, "x"}}, {"a", "c", "d"}),
              "  expected\n    > a\n  * > b*\n    >! x\n  came\n    a\n    c\n    d\n");
    EXPECT_EQ(Difference({{Kind::InOrder, "a"}}, {"a", "b"}),
              "  expected\n    > a\n  * and nothing more\n  came\n    a\n    b\n");
    EXPECT_EQ(Difference({{Kind::Among, "a"}}, {}), "  expected\n  * >? a\n  came\n    nothing\n");
}

} // namespace
} // namespace quor
