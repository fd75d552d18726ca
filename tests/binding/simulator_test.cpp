#include "servers/simulator/simulated_server.h"
#include "servers/simulator/sites_file.h"
#include "tests/test.h"

namespace {

constexpr int second = 1000; // milliseconds of the timers

// A server of the built-in sites, and all that it says as lines.
struct Simulation {
    explicit Simulation(std::uint64_t seed = 1, SimulatedServer::Pace pace = {})
        : server(timers, BuiltInSites(), seed, pace)
    {
        const auto keep = [&](Subscription subscription) { subscriptions.push_back(std::move(subscription)); };
        keep(server.ConfigData.Subscribe([&](const ConfigDataEvent& event) { Tell("ConfigData", event.NetName); }));
        keep(server.Values.Subscribe([&](const ValuesEvent& event) {
            std::string text =
                !records ? std::string()
                         : event.NetName + ' ' + std::to_string(event.UnitNum) + ' ' + std::to_string(event.Status);
            for (std::size_t channel = 0; records && channel < event.MeterValues.Count(); ++channel) {
                text += ' ' + std::to_string(event.MeterValues.FromLower(static_cast<std::int32_t>(channel)));
            }
            Tell("Values", text);
            mutes = mutes || event.StatMutes != 0 || event.MeterMutes != 0;
            lastStatus[{event.NetName, event.UnitNum}] = event.Status;
            if (isDown[event.NetName]) {
                Tell("Values without a link", text);
            }
        }));
        keep(server.FlagReport.Subscribe([&](const FlagReportEvent& event) { Tell("FlagReport", event.NetName); }));
        keep(server.Connected.Subscribe([&](const std::string& site, std::int32_t status) {
            isDown[site] = status == 4;
            Tell(status == 4 ? "Tried" : "Connected", site);
        }));
        keep(server.Disconnected.Subscribe([&](const std::string& site, std::int32_t) {
            isDown[site] = true;
            Tell("Disconnected", site);
        }));
        keep(server.AlarmFlagChange.Subscribe([&](const std::string& site, std::uint8_t, bool pending, bool ofSite) {
            Tell(pending ? "Alarm" : "Cleared", site);
            EXPECT_EQ(server.Sites().Item(site).SiteAlarms(), ofSite);
            EXPECT_TRUE(ofSite || !pending);
        }));
        keep(server.RemoteLocalChange.Subscribe(
            [&](const std::string& site, std::uint8_t, bool local) { Tell(local ? "Local" : "Remote", site); }));
        keep(server.MacroStatus.Subscribe([&](const std::string& site, std::uint8_t, std::uint8_t, bool running) {
            Tell(running ? "Runs" : "Ends", site);
        }));
    }

    void Tell(const std::string& what, const std::string& text)
    {
        ++counts[what];
        said += records ? what + ' ' + text + '\n' : std::string();
    }

    TeskUnit& Unit(const std::string& site, std::uint8_t unit) { return server.Sites().Item(site).Units().Item(unit); }

    FakeTimers timers;
    SimulatedServer server;
    std::map<std::string, int> counts;
    std::map<std::string, bool> isDown;
    std::map<std::pair<std::string, std::uint8_t>, std::int16_t> lastStatus;
    std::string said;
    bool records = true; // what is said
    bool mutes = false;
    std::vector<Subscription> subscriptions;
};

TEST(TheSimulatedServer, SaysTheSameForTheSameSeed)
{
    Simulation one(7);
    Simulation same(7);
    Simulation other(8);
    for (Simulation* simulation : {&one, &same, &other}) {
        simulation->server.Start();
        simulation->timers.Advance(100 * second);
    }
    EXPECT_EQ(one.said, same.said);
    EXPECT_NE(one.said, other.said);
}

TEST(TheSimulatedServer, LetsEverythingHappenWithinADay)
{
    Simulation day(1, {.milliseconds = second, .seconds = 30});
    day.records = false;
    day.server.Start();
    day.timers.Advance(86'400 / 30 * second);
    for (const char* what : {"Values", "FlagReport", "Disconnected", "Tried", "Connected", "ConfigData", "Alarm",
                             "Cleared", "Local", "Remote", "Runs", "Ends"}) {
        EXPECT_GT(day.counts[what], 3) << what;
    }
    EXPECT_TRUE(day.mutes);
    EXPECT_EQ(day.counts["Values without a link"], 0);
}

TEST(TheSimulatedServer, AnswersARequestOnceForAllWhoAsked)
{
    Simulation simulation;
    for (int times = 0; times < 1000; ++times) {
        simulation.Unit("Harbour", 2).RequestConfig();
    }
    EXPECT_TRUE(simulation.said.empty()) << "not within the request";
    simulation.timers.Advance(second);
    EXPECT_EQ(simulation.counts, (std::map<std::string, int>{{"ConfigData", 1}, {"Values", 1}, {"FlagReport", 1}}));
}

TEST(TheSimulatedServer, ObeysCommandsAndMacros)
{
    Simulation simulation;
    TeskUnit& pumps = simulation.Unit("Harbour", 2);
    const std::int16_t& status = simulation.lastStatus[{"Harbour", 2}];
    pumps.Commands().Item(1).IssueA();
    EXPECT_EQ(status & 2, 2) << "the second pump runs";
    pumps.Commands().Item(1).IssueB();
    EXPECT_EQ(status & 2, 0);
    pumps.RunMacro(1);
    pumps.RunMacro(2);
    pumps.StopMacro(1);
    pumps.StopAllMacros();
    EXPECT_EQ(simulation.counts["Runs"], 2);
    EXPECT_EQ(simulation.counts["Ends"], 2);
    EXPECT_THROW(pumps.RunMacro(33), Failure);
    EXPECT_THROW(pumps.Commands().Item(16), Failure);
    TeskUnit& gate = simulation.Unit("East Gate", 15); // in local control
    gate.Commands().Item(0).IssueA();
    gate.RunMacro(1);
    EXPECT_EQ(simulation.lastStatus.size(), 1U) << "nothing came of it";
    EXPECT_TRUE(simulation.server.AppAlarms());
    simulation.server.Sites().ForEach(
        [](TeskSite& site) { site.Units().ForEach([](TeskUnit& unit) { unit.ClearAlarms(); }); });
    EXPECT_EQ(simulation.counts["Cleared"], 1);
    EXPECT_FALSE(simulation.server.AppAlarms());
}

TEST(TheSites, ThatNobodyTellsAreBuiltInAndAFileThatCannotBeUsedIsSaidWhenTheyAreAskedFor)
{
    FakeFiles files;
    FakeBoxes boxes;
    files.PutText("own.json", "{");
    SitesFile sites(files, boxes, {"own.json"});
    EXPECT_GE(sites.Plan().sites.size(), 4U);
    EXPECT_TRUE(boxes.shown.empty());
    sites.ReloadSites();
    EXPECT_EQ(boxes.shown.size(), 1U);
    files.DeleteFile("own.json");
    sites.ReloadSites();
    EXPECT_EQ(boxes.shown.size(), 1U);
}

TEST(TheSimulatedServer, KeepsTheAlarmsOfItsPlanThatNoUnitHas)
{
    FakeTimers timers;
    ServerPlan plan = ReadServerPlan(R"({"AppAlarms": true, "Sites": [{"NetName": "A", "Units": [{"UnitNum": 1}]}]})");
    SimulatedServer elsewhere(timers, plan, 1);
    EXPECT_TRUE(elsewhere.AppAlarms());
    bool isToldOfTheEnd = false;
    const Subscription told = elsewhere.AlarmFlagChange.Subscribe(
        [&](const std::string&, std::uint8_t, bool, bool) { isToldOfTheEnd = !elsewhere.AppAlarms(); });
    elsewhere.Sites().Item("A").Units().Item(1).ClearAlarms();
    EXPECT_TRUE(isToldOfTheEnd);
    plan = ReadServerPlan(R"({"Sites": [{"NetName": "A", "SiteAlarms": true}]})");
    SimulatedServer withoutUnits(timers, plan, 1);
    EXPECT_TRUE(withoutUnits.Sites().Item("A").SiteAlarms());
    EXPECT_TRUE(withoutUnits.AppAlarms());
}

TEST(TheSimulatedServer, SaysOfADeadSiteThatItIsDisconnected)
{
    Simulation simulation;
    simulation.server.Start();
    while (!simulation.isDown["Harbour"]) {
        simulation.timers.Advance(second);
    }
    simulation.counts.clear();
    simulation.Unit("Harbour", 2).RequestConfig();
    simulation.timers.Advance(second / 2);
    EXPECT_EQ(simulation.counts, (std::map<std::string, int>{{"Disconnected", 1}}));
}

TEST(TheSites, ComeAnewFromTheFirstFileThatIsThere)
{
    FakeFiles files;
    FakeBoxes boxes;
    const auto catalog = [](SitesFile& sites) {
        TeskSiteList list;
        sites.GetCatalog().ReloadSites();
        sites.GetCatalog().GetSites(list);
        std::string names;
        for (const TeskSiteEntry& entry : list) {
            names += entry.SiteName + ' ';
        }
        return names;
    };
    files.PutText("shared.json", R"({"Sites": [{"NetName": "A"}]})");
    SitesFile sites(files, boxes, {"own.json", "shared.json"});
    EXPECT_EQ(sites.Plan().sites.size(), 1U);
    EXPECT_EQ(catalog(sites), "A ");
    files.PutText("shared.json", R"({"Sites": [{"NetName": "A"}, {"NetName": "B", "CatalogOnly": true}]})");
    EXPECT_EQ(catalog(sites), "A B ") << "added while the program runs";
    EXPECT_TRUE(boxes.shown.empty());
    files.PutText("own.json", "{\n\"Sites\": 7}");
    EXPECT_EQ(catalog(sites) + catalog(sites), "A B A B ");
    ASSERT_EQ(boxes.shown.size(), 1U) << "it is said once";
    EXPECT_EQ(boxes.shown[0].text.find("The sites of the file \"own.json\" cannot be used. Sites is no list."), 0U);
    files.PutText("own.json", R"({"Sites": [{"NetName": "C"}]})");
    EXPECT_EQ(catalog(sites), "C ");
    files.PutText("own.json", "{\n\"Sites\": 7}");
    EXPECT_EQ(catalog(sites), "C ");
    EXPECT_EQ(boxes.shown.size(), 2U) << "it was mended in between";
}

} // namespace
