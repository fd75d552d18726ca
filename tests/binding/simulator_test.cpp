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
        const auto hear = [&](auto& event, auto handler) { subscriptions.push_back(event.Subscribe(handler)); };
        hear(server.ConfigData, [&](const ConfigDataEvent& event) { Tell("ConfigData", event.NetName); });
        hear(server.FlagReport, [&](const FlagReportEvent& event) { Tell("FlagReport", event.NetName); });
        hear(server.Values, [&](const ValuesEvent& event) {
            std::string text = event.NetName + ' ' + std::to_string(event.UnitNum);
            for (std::size_t channel = 0; channel < event.MeterValues.Count(); ++channel) {
                text += ' ' + std::to_string(event.MeterValues.FromLower(static_cast<std::int32_t>(channel)));
            }
            Tell(isDown[event.NetName] ? "Values without a link" : "Values", text);
            counts["Muted"] += event.StatMutes != 0 || event.MeterMutes != 0 ? 1 : 0;
            lastStatus[text.substr(0, text.find(' ', event.NetName.size() + 1))] = event.Status;
        });
        hear(server.Connected, [&](const std::string& site, std::int32_t status) {
            isDown[site] = status == 4;
            Tell(status == 4 ? "Tried" : "Connected", site);
        });
        hear(server.Disconnected, [&](const std::string& site, std::int32_t) {
            isDown[site] = true;
            Tell("Disconnected", site);
        });
        hear(server.AlarmFlagChange, [&](const std::string& site, std::uint8_t, bool pending, bool ofSite) {
            Tell(pending ? "Alarm" : "Cleared", site);
            EXPECT_EQ(server.Sites().Item(site).SiteAlarms(), ofSite);
            EXPECT_TRUE(ofSite || !pending);
        });
        hear(server.RemoteLocalChange,
             [&](const std::string& site, std::uint8_t, bool local) { Tell(local ? "Local" : "Remote", site); });
        hear(server.MacroStatus, [&](const std::string& site, std::uint8_t, std::uint8_t, bool running) {
            Tell(running ? "Runs" : "Ends", site);
        });
    }

    void Tell(const std::string& what, const std::string& text)
    {
        ++counts[what];
        said += what + ' ' + text + '\n';
    }

    TeskUnit& Unit(const std::string& site, std::uint8_t unit) { return server.Sites().Item(site).Units().Item(unit); }

    FakeTimers timers;
    SimulatedServer server;
    std::map<std::string, int> counts;
    std::map<std::string, bool> isDown;
    std::map<std::string, std::int16_t> lastStatus; // by site and unit
    std::string said;
    std::vector<Subscription> subscriptions;
};

TEST(TheSimulatedServer, SaysTheSameForTheSameSeed)
{
    std::vector<std::string> said;
    for (const std::uint64_t seed : {7U, 7U, 8U}) {
        Simulation simulation(seed);
        simulation.server.Start();
        simulation.timers.Advance(100 * second);
        said.push_back(simulation.said);
    }
    EXPECT_EQ(said[0], said[1]);
    EXPECT_NE(said[0], said[2]);
}

TEST(TheSimulatedServer, LetsEverythingHappenWithinADay)
{
    Simulation day(1, {.milliseconds = second, .seconds = 30});
    day.server.Start();
    day.timers.Advance(86'400 / 30 * second);
    for (const char* what : {"Values", "Muted", "FlagReport", "Disconnected", "Tried", "Connected", "ConfigData",
                             "Alarm", "Cleared", "Local", "Remote", "Runs", "Ends"}) {
        EXPECT_GT(day.counts[what], 3) << what;
    }
    EXPECT_EQ(day.counts["Values without a link"], 0);
}

TEST(TheSimulatedServer, AnswersARequestOnceForAllWhoAskedAndOfADeadSiteThatItIsDisconnected)
{
    Simulation simulation;
    for (int times = 0; times < 1000; ++times) {
        simulation.Unit("Harbour", 2).RequestConfig();
    }
    EXPECT_TRUE(simulation.said.empty()) << "not within the request";
    simulation.timers.Advance(second);
    EXPECT_EQ(simulation.counts,
              (std::map<std::string, int>{{"ConfigData", 1}, {"FlagReport", 1}, {"Muted", 0}, {"Values", 1}}));
    simulation.server.Start();
    while (!simulation.isDown["Harbour"]) {
        simulation.timers.Advance(second);
    }
    simulation.counts.clear();
    simulation.Unit("Harbour", 2).RequestConfig();
    simulation.timers.Advance(second / 2);
    EXPECT_EQ(simulation.counts, (std::map<std::string, int>{{"Disconnected", 1}}));
}

TEST(TheSimulatedServer, ObeysCommandsAndMacros)
{
    Simulation simulation;
    TeskUnit& pumps = simulation.Unit("Harbour", 2);
    const std::int16_t& status = simulation.lastStatus["Harbour 2"];
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

TEST(TheSites, ComeAnewFromTheFirstFileThatIsThereAndAFaultIsSaidOnceWhenTheyAreAskedFor)
{
    FakeFiles files;
    FakeBoxes boxes;
    const char* const faulty = "{\n\"Sites\": 7}";
    files.PutText("own.json", faulty);
    SitesFile sites(files, boxes, {"own.json", "shared.json"});
    EXPECT_GE(sites.Plan().sites.size(), 4U) << "built in";
    EXPECT_TRUE(boxes.shown.empty());
    // What the file holds then, empty for none, the catalogue, and how many boxes were shown until then.
    const struct {
        const char* file;
        const char* text;
        const char* names;
        std::size_t boxes;
    } steps[] = {
        {"shared.json", R"({"Sites": [{"NetName": "A"}]})", "", 1},
        {"own.json", R"({"Sites": [{"NetName": "C"}]})", "C ", 1},
        {"own.json", faulty, "C ", 2}, // it was mended in between
        {"own.json", faulty, "C ", 2},
        {"own.json", "", "A ", 2},
        {"shared.json", R"({"Sites": [{"NetName": "A"}, {"NetName": "B", "CatalogOnly": true}]})", "A B ", 2},
    };
    for (const auto& step : steps) {
        files.Erase(step.file);
        if (*step.text != '\0') {
            files.PutText(step.file, step.text);
        }
        TeskSiteList list;
        sites.GetCatalog().ReloadSites();
        sites.GetCatalog().GetSites(list);
        std::string names;
        for (const TeskSiteEntry& entry : list) {
            names += entry.SiteName + ' ';
        }
        EXPECT_TRUE(names == step.names || (*step.names == '\0' && list.size() >= 4)) << names;
        EXPECT_EQ(boxes.shown.size(), step.boxes) << step.text;
    }
    EXPECT_TRUE(
        boxes.shown[0].text.starts_with("The sites of the file \"own.json\" cannot be used. Sites is no list."));
}

} // namespace
