#include "tests/journey_driver/journey.h"
#include "tests/test.h"

namespace {

std::string ErrorOf(std::string_view text)
{
    try {
        ReadJourney(text);
    } catch (const JourneyError& error) {
        return error.what();
    }
    return "none";
}

TEST(AJourney, IsReadAsStepsAndBlocks)
{
    const Journey journey = ReadJourney("# told\r\n\n  start  \"/Open a b.qvw\" \t x\r\n> one *\n\n# more\n>? two\n"
                                        ">!  three\n>\nwait 5\n> last");
    ASSERT_EQ(journey.size(), 4U);
    EXPECT_EQ(journey[0].line, 3);
    ASSERT_EQ(journey[0].words.size(), 3U);
    EXPECT_EQ(journey[0].words[1].text, "/Open a b.qvw");
    EXPECT_TRUE(journey[0].words[1].isQuoted);
    EXPECT_EQ(journey[0].words[2].text, "x");
    EXPECT_FALSE(journey[0].words[2].isQuoted);
    ASSERT_EQ(journey[1].answers.size(), 4U);
    EXPECT_EQ(journey[1].answers[0].pattern, "one *");
    EXPECT_EQ(journey[1].answers[1].kind, Expected::Kind::Among);
    EXPECT_EQ(journey[1].answers[2].kind, Expected::Kind::Never);
    EXPECT_EQ(journey[1].answers[2].pattern, " three");
    EXPECT_EQ(journey[1].answers[3].pattern, "");
    EXPECT_EQ(journey[3].answers[0].pattern, "last");
}

TEST(AQuotedWord, HasTheEscapesOfJson)
{
    const Journey journey = ReadJourney(R"(x "\"\\\/\b\f\n\r\t\u0041\u00e9\u20AC\ud83d\ude00" "")");
    ASSERT_EQ(journey.at(0).words.size(), 3U);
    EXPECT_EQ(journey[0].words[1].text, "\"\\/\b\f\n\r\tA\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(journey[0].words[2].text, "");
}

TEST(AMalformedLine, IsNamed)
{
    EXPECT_EQ(ErrorOf("start\n\nfile \"a"), "3: a quote without an end");
    for (const char* line : {"x \"a\\", "x \"a\"b", "x a\"b\"", "x \"\\q\"", "x \"\\u12g4\"", "x \"\\u12\"",
                             "x \"\\ud800\"", "x \"\\ud800\\u0041\"", "x \"\\udc00\"", ">a", ">?a"}) {
        EXPECT_EQ(ErrorOf(line).substr(0, 3), "1: ") << line;
    }
}

} // namespace
