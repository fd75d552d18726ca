#include "binding/bln_data_source.h"
#include "binding/cmd_data_source.h"
#include "binding/live.h"
#include "binding/mtr_data_source.h"
#include "tests/test.h"

namespace {

struct ASource : testing::Test {
    FakeServer server;
    FakeLogin login;
    FakeBoxes boxes;
    Live live;
    FakeUnit& unit = server.Add("Ridge").Add(2);

    ASource()
    {
        live.Server = &server;
        live.Login = &login;
        live.Boxes = &boxes;
        unit.name = "Exciter";
    }

    static void Start(clsCmdDataSource& source, std::int32_t action)
    {
        source.Set(&clsCmdDataSource::CmdDataType, action);
        source.Set(&clsCmdDataSource::Site, "Ridge");
        source.Set(&clsCmdDataSource::Unit, 2);
        source.Set(&clsCmdDataSource::Channel, 4);
        source.RefreshData();
    }
};

constexpr std::string_view offLine = "The site/unit is not connected.";
constexpr std::string_view local = "The site is in local control mode.";
constexpr std::string_view forbidden = "You do not have sufficient user privileges to run this command.";

struct Action {
    std::int32_t type;
    std::int16_t right; // 0: none
    bool needsSite;
    bool needsRemote;
    const char* call;
    const char* captions; // of a refresh, then of a configuration
};

const Action everyAction[] = {
    {actions::commandA, 1, true, true, "Commands.Item(3).IssueA", "|Raise"},
    {actions::commandB, 1, true, true, "Commands.Item(3).IssueB", "|Lower"},
    {actions::runMacro, 2, true, true, "RunMacro(4)", "|Run: Warm up"},
    {actions::stopMacro, 2, true, true, "StopMacro(4)", "|Stop: Warm up"},
    {actions::stopAllMacros, 2, true, true, "StopAllMacros", "Stop Macros on Exciter|"},
    {actions::clearSiteAlarms, 3, true, false, "ClearAlarms", "Clear Alarms on Ridge|"},
    {actions::clearUnitAlarms, 3, true, false, "ClearAlarms", "Clear Alarms on Exciter|"},
    {actions::clearAllAlarms, 3, true, false, "ClearAlarms", "Clear All Alarms|"},
};

TEST_F(ASource, LocksAnActionForTheFirstConditionThatFailsAndRunsItOtherwise)
{
    for (const Action& action : everyAction) {
        clsCmdDataSource source(live);
        Start(source, action.type);
        EXPECT_TRUE(source.CmdEnabled()) << action.type;
        server.calls.clear();
        source.RunCommand(0);
        EXPECT_EQ(server.calls.back(), std::string("Sites.Item(\"Ridge\").Units.Item(2).") + action.call);

        login.rightsHeld.erase(action.right);
        server.RemoteLocalChange.Raise("Ridge", 9, true);
        server.Disconnected.Raise("Ridge", 0);
        login.EndLogOn(true);
        EXPECT_EQ(source.LockReason(), offLine) << action.type;
        server.Connected.Raise("Ridge", 4);
        EXPECT_EQ(source.LockReason(), offLine) << "4 is no connection";
        server.Connected.Raise("Ridge", 6);
        EXPECT_EQ(source.LockReason(), action.needsRemote ? local : forbidden) << action.type;
        server.RemoteLocalChange.Raise("Ridge", 9, false);
        EXPECT_EQ(source.LockReason(), forbidden) << action.type;
        source.RunCommand(0);
        EXPECT_EQ(boxes.shown.back(),
                  (ShownBox{"This command is locked. " + std::string(forbidden), "", BoxButtons::Ok}));
        login.rightsHeld.insert(action.right);
        login.EndLogOn(true);
        EXPECT_TRUE(source.CmdEnabled());
        login.EndSession();
        EXPECT_EQ(source.LockReason(), forbidden);
        login.isLoggedOn = true;
    }
}

TEST_F(ASource, NamesItsActionAndAsksForItsLabelUntilItIsKnown)
{
    ConfigDataEvent config{"Ridge", 2, {}, {}, {}, {}, {}, {}, {}};
    config.CmdLabels = {{"", "", "", "", "", "", "Raise", "Lower"}, 2};
    config.MacroNames = {{"", "", "", "", "", "", "Warm up", "True"}, 2};
    unit.localMode = true;
    for (const Action& action : everyAction) {
        clsCmdDataSource source(live);
        std::string captions;
        const Subscription heard = source.LabelData.Subscribe([&](const std::string& text) { captions += text; });
        Start(source, action.type);
        EXPECT_EQ(source.LockReason(), action.type == actions::stopAllMacros ? local : "") << action.type;
        captions += '|';
        server.ConfigData.Raise(config);
        EXPECT_EQ(captions, action.captions) << action.type;
        const auto asks = static_cast<std::size_t>(captions.front() == '|' ? 1 : 0);
        source.RefreshData();
        EXPECT_EQ(std::exchange(server.calls, {}).size(), asks) << action.type;
    }
}

TEST_F(ASource, NamesTheViewThatItOpensByItsTitle)
{
    FakeFiles files;
    live.ViewFiles = &files;
    files.PutText("damaged.qvw", "QUOR4VIEW");
    clsCmdDataSource source(live);
    std::string caption;
    const Subscription heard = source.LabelData.Subscribe([&](const std::string& text) { caption = text; });
    source.Set(&clsCmdDataSource::CmdDataType, actions::openView);
    source.Set(&clsCmdDataSource::Site, "damaged.qvw");
    source.RefreshData();
    EXPECT_EQ(caption, "ERROR - Invalid File");
    EXPECT_TRUE(source.CmdEnabled());
}

TEST_F(ASource, AsksForTheCtrlKeyBeforeItSpeaksOfALock)
{
    clsCmdDataSource source(live);
    source.Set(&clsCmdDataSource::CmdDataType, actions::runMacro);
    source.Set(&clsCmdDataSource::CtrlClick, true);
    source.RunCommand(0);
    EXPECT_EQ(boxes.shown.back().text,
              "Press and hold the CTRL key and click the left mouse button to unlock this command.");
    source.RunCommand(clsCmdDataSource::ctrlKey);
    EXPECT_EQ(boxes.shown.back().text, "This command is locked. ") << "never refreshed, it has no reason yet";
    source.Set(&clsCmdDataSource::CmdDataType, actions::none);
    source.Set(&clsCmdDataSource::CtrlClick, false);
    source.RunCommand(0);
    EXPECT_EQ(boxes.shown.size(), 2U);
}

// Hears a meter's source.
struct AMeterOwner final : MtrOwner {
    std::vector<MeterLabel> labels;
    std::vector<std::pair<float, bool>> values;
    std::vector<int> places;

    void m_MtrDataSource_UpdateMtrData(float reading, bool mute) override { values.emplace_back(reading, mute); }
    void m_MtrDataSource_DecPlacesChanged(std::int16_t newPlaces) override { places.push_back(newPlaces); }
    void m_MtrDataSource_LabelData(const MeterLabel& label) override { labels.push_back(label); }
};

TEST_F(ASource, ScalesAMeterByItsTypeAndForgetsALostLink)
{
    AMeterOwner owner;
    clsMtrDataSource source(live, owner);
    source.Set(&clsMtrDataSource::Site, "Ridge");
    source.Set(&clsMtrDataSource::Unit, 2);
    source.Set(&clsMtrDataSource::Channel, 1);
    const auto configure = [&](std::uint8_t type, float count) {
        ConfigDataEvent config{"Ridge", 2, {}, {}, {}, {}, {}, {}, {}};
        config.Limits = {{10, 20, 80, 90}, 4};
        config.MtrLabels = ServerArray<std::string>({"Power"});
        config.CalibConst = ServerArray<float>({count});
        config.MtrTypes = ServerArray<std::uint8_t>({type});
        server.ConfigData.Raise(config);
    };
    configure(1, 0.5F);
    configure(2, 0.5F);
    ASSERT_EQ(owner.labels.size(), 2U);
    EXPECT_EQ(owner.labels[0].sngMin, -1024);
    EXPECT_EQ(owner.labels[0].sngMax, 1023.5F);
    EXPECT_EQ(owner.labels[1].sngMin, 0);
    EXPECT_EQ(owner.labels[1].sngMax, 2047.5F);
    EXPECT_EQ(owner.labels[1].sngSecondUpper, 90);
    configure(1, 1.662e35F); // times 2,047 it would fit
    configure(2, 3e35F);
    EXPECT_EQ(owner.labels.size(), 2U) << "a scale that is no number is told to nobody";

    server.Values.Raise({"Ridge", 2, 0, 0, 0, 0, 1, ServerArray<float>({42})});
    source.RefreshData();
    EXPECT_TRUE(server.calls.empty()) << "it has data";
    server.Disconnected.Raise("Ridge", 0);
    source.RefreshData();
    EXPECT_EQ(server.calls.size(), 1U);
    EXPECT_EQ(owner.values, (std::vector<std::pair<float, bool>>{{42, true}, {NoData, true}}));
    source.Set(&clsMtrDataSource::Site, "Nowhere");
    source.RefreshData();
    EXPECT_EQ(owner.values.size(), 3U);
    source.Set(&clsMtrDataSource::DecimalPlaces, 2);
    source.Set(&clsMtrDataSource::DecimalPlaces, 2);
    EXPECT_EQ(owner.places, (std::vector{2, 2})) << "told at each set";
}

} // namespace
