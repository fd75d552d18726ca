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

TEST(AServerFile, IsRefusedWithTheLineOfItsFault)
{
    const std::string deep(100'000, '[');
    const struct {
        std::string json;
        const char* line;
    } faults[] = {
        {"", "Line 1: "},
        {"{\n\"Sites\": [\n", "Line 3: "},
        {"{\"Sites\":\n[{\"NetName\":\n7}]}", "Line 3: "},
        {"{\n\"AppAlarms\": 1}", "Line 2: "},
        {"{\"Later\":\n" + deep, "Line 2: "},
        {"{\"Sites\": [{\"NetName\": \"A\"},\n{\"NetName\": \"A\"}]}", "Line 2: "},
        {"{\"Sites\": [{\"Units\": [{\"UnitNum\": 3},\n{\"UnitNum\": 3}]}]}", "Line 2: "},
        {"{\"Sites\": [{\"Units\": [{\n\"UnitNum\": 17}]}]}", "Line 2: "},
        {"{\"Sites\": [{\"Units\": [{\"Meters\": [{\n\"Limits\": [1,2,3,4,5]}]}]}]}", "Line 2: "},
        {"{\"Sites\": [{\"Units\": [{\"Meters\": [{\"Calibration\":\n1e39}]}]}]}", "Line 2: "},
        {"{\"AppAlarms\": true, \"AppAlarms\": true}", "Line 1: "},
        {"{\"Sites\": [{\"NetName\": \"\\ud800\"}]}", "Line 1: "},
        {"{}\n\n{}", "Line 3: "},
        {"{\"Later\": nul}", "Line 1: "},
        {"{\"Later\": \"a\nb\"}", "Line 1: "},
    };
    for (const auto& fault : faults) {
        EXPECT_EQ(WordsOf(fault.json).substr(0, 8), fault.line) << fault.json.substr(0, 80) << WordsOf(fault.json);
    }
}

} // namespace
