#include "servers/simulator/server_plan.h"

#include "base/failure.h"
#include "tests/test.h"

namespace {

std::string WordsOf(const std::string& json)
{
    try {
        ReadServerPlan(json);
    } catch (const Failure& failure) {
        return failure.Description();
    }
    return {};
}

TEST(AServerFile, LeavesEmptyWhatIsMissing)
{
    const ServerPlan plan =
        ReadServerPlan(R"({"Sites": [{"NetName": "Pl\u00E4tz \ud83d\ude00", "Units": [{"UnitNum": 16,
        "Later": [{"a": null}], "Meters": [{"Limits": [-1e1, 2.5]}, {"Type": 1}], "Macros": [{}, {"Running": true}]}]}]})");
    ASSERT_EQ(plan.sites.size(), 1U);
    EXPECT_EQ(plan.sites[0].netName, "Pl\u00E4tz \U0001F600");
    const UnitPlan& unit = plan.sites[0].units.at(0);
    EXPECT_EQ(unit.number, 16);
    EXPECT_EQ(unit.meters[0].limits, (std::array<float, 4>{-10, 2.5F, 0, 0}));
    EXPECT_EQ(unit.meters[1].type, 1);
    EXPECT_TRUE(unit.macros[1].running);
    EXPECT_FALSE(plan.appAlarms);
}

TEST(AServerFile, IsRefusedWithThePlaceOfItsFault)
{
    const std::string deep(100'000, '[');
    const struct {
        std::string json;
        const char* words;
    } faults[] = {
        {"", "Line 1, column 1: the text ends too early."},
        {"{\n\"Sites\": [\n", "Line 3, column 1: the text ends too early."},
        {"[]", "An object is wanted."},
        {"{\"Sites\": [{\"NetName\": 7}]}", "Sites[0].NetName is no text."},
        {"{\"AppAlarms\": 1}", "AppAlarms is neither true nor false."},
        {"{\"Later\": " + deep, "Later[0][0][0]"},
        {"{\"Sites\": [{\"NetName\": \"A\"}, {\"NetName\": \"A\"}]}", "Sites[1] is there twice."},
        {"{\"Sites\": [{\"Units\": [{\"UnitNum\": 3}, {\"UnitNum\": 3}]}]}", "Sites[0].Units[1] is there twice."},
        {"{\"Sites\": [{\"Units\": [{\"UnitNum\": 17}]}]}", "Sites[0].Units[0].UnitNum is out of range."},
        {"{\"Sites\": [{\"Units\": [{\"Meters\": [{\"Limits\": [1,2,3,4,5]}]}]}]}",
         "Sites[0].Units[0].Meters[0].Limits has more than 4 items."},
        {"{\"Sites\": [{\"Units\": [{\"Meters\": [{\"Calibration\": 1e39}]}]}]}",
         "Sites[0].Units[0].Meters[0].Calibration is out of range."},
        {"{\"Sites\": [{\"Units\": 7}]}", "Sites[0].Units is no list."},
        {"{\"AppAlarms\": true, \"AppAlarms\": true}", "AppAlarms is there twice."},
        {"{\"Sites\": [{\"NetName\": \"\\ud800\"}]}", "Line 1, "},
        {"{}\n\n{}", "Line 3, column 1: from here on this is no JSON."},
        {"{\"Later\": nul}", "Line 1, "},
        {"{\"Later\": \"a\nb\"}", "Line 1, column 13"},
    };
    for (const auto& fault : faults) {
        EXPECT_TRUE(WordsOf(fault.json).starts_with(fault.words)) << fault.json.substr(0, 80) << WordsOf(fault.json);
    }
}

} // namespace
