#include "binding/simulator/simulated_server.h"
#include "binding/simulator/sites_file.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_timers.h"

#include <gtest/gtest.h>

#include <map>

namespace quor {
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

TEST(TheSites, ComeFromTheFirstFileThatIsThere)
{
    FakeFiles files;
    FakeBoxes boxes;
    const std::string paths[] = {"own.json", "shared.json"};
    EXPECT_GE(LoadSites(files, boxes, paths).sites.size(), 4U);
    files.PutText("shared.json", "{\"Sites\": [{\"NetName\": \"A\"}]}");
    EXPECT_EQ(LoadSites(files, boxes, paths).sites.size(), 1U);
    std::vector<std::string> messages;
    const Subscription shown = boxes.Shown.Subscribe([&](const ShownBox& box) { messages.push_back(box.text); });
    files.PutText("own.json", "{\n\"Sites\": 7}");
    EXPECT_GE(LoadSites(files, boxes, paths).sites.size(), 4U);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages[0].find("own.json"), std::string::npos);
    EXPECT_NE(messages[0].find("Line 2: "), std::string::npos) << messages[0];
}

} // namespace
} // namespace quor
