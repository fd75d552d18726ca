// What sources of each type make of each event of the server, and of a logon: tests/data/kept/sources.txt has what was
// heard of them. Then their arithmetic.

#include "base/text.h"
#include "binding/bln_data_source.h"
#include "binding/cmd_data_source.h"
#include "binding/live.h"
#include "binding/mtr_data_source.h"
#include "binding/sites.h"
#include "tests/support/kept_text.h"
#include "tests/test.h"

namespace {

// What came of the events: "1m" is true and muted, "[on|off]" captions.
struct Owner final : BlnOwner, MtrOwner, CmdOwner {
    std::string heard;

    std::string Take() { return std::exchange(heard, {}); }

    void m_BlnDataSource_UpdateBlnData(bool value, bool mute) override
    {
        heard += std::string(value ? "1" : "0") + (mute ? "m" : "");
    }
    void m_BlnDataSource_LabelData(const std::string& on, const std::string& off) override
    {
        heard += "[" + on + "|" + off + "]";
    }
    void m_MtrDataSource_UpdateMtrData(float value, bool mute) override
    {
        heard += ' ' + Decimal(value) + (mute ? "m" : "");
    }
    void m_MtrDataSource_DecPlacesChanged(std::int16_t places) override
    {
        heard += std::to_string(places) + " places ";
    }
    void m_ClickAction_LabelData(const std::string& caption) override { heard += "[" + caption + "]"; }
    void m_ClickAction_ToggleEnable(bool enabled) override { heard += enabled ? "enabled" : "locked"; }
    void m_MtrDataSource_LabelData(const MeterLabel& label) override
    {
        heard += "[" + label.strLabel;
        for (const float number : {label.sngMin, label.sngMax, label.sngSecondLower, label.sngFirstLower,
                                   label.sngFirstUpper, label.sngSecondUpper}) {
            heard += ' ' + Decimal(number);
        }
        heard += "]";
    }
};

struct ASource : testing::Test {
    FakeServer server;
    FakeLogin login;
    FakeBoxes boxes;
    Live live;
    Owner owner;
    FakeUnit& unit = server.Add("Ridge").Add(2);
    std::string told;
    const clsCmdDataSource* lock = nullptr; // whose reason is told

    ASource()
    {
        live.Server = &server;
        live.Login = &login;
        live.Boxes = &boxes;
        unit.name = "Exciter";
        unit.eventsPending = true;
        server.Add("Harbour").siteAlarms = true;
    }

    template <class S> static void Place(S& source, std::uint8_t channel = 1)
    {
        source.Set(&S::Site, "Ridge");
        source.Set(&S::Unit, 2);
        source.Set(&S::Channel, channel);
    }
    std::unique_ptr<clsBlnDataSource> Watch(std::int32_t type, std::uint8_t channel = 1)
    {
        auto source = std::make_unique<clsBlnDataSource>(live, owner);
        source->Set(&clsBlnDataSource::BlnDataType, type);
        Place(*source, channel);
        return source;
    }

    void Configure(std::vector<float> limits, const std::string& site = "Ridge", std::uint8_t number = 2,
                   const std::string& flag = "True", float calibration = 0.5F, std::uint8_t meterType = 1)
    {
        ConfigDataEvent event{site, number, {}, {}, {}, {}, {}, {}, {}};
        event.Limits = {std::move(limits), 4, 3, 7};
        event.CmdLabels = {{"Raise", "Lower"}, 2};
        event.MtrLabels = ServerArray<std::string>({"Power"}, 1);
        event.StatusLabels = {{"Closed", "Open"}, 2};
        event.MacroNames = {{"Warm up", flag}, 2};
        event.CalibConst = ServerArray<float>({calibration});
        event.MtrTypes = ServerArray<std::uint8_t>({meterType});
        server.ConfigData.Raise(event);
    }
    void Read(float value, std::int16_t bits = 0, const std::string& site = "Ridge", std::uint8_t number = 2)
    {
        server.Values.Raise({site, number, 0, bits, bits, bits, bits, ServerArray<float>({value}, 1)});
    }
    // One line for each event that the owner hears of, or on which the server is asked for something.
    template <class Act> void Tell(const std::string& what, Act act)
    {
        act();
        std::string heard = owner.Take();
        heard += heard.ends_with("locked") && lock != nullptr ? ". " + lock->LockReason() : "";
        for (const std::string& call : std::exchange(server.calls, {})) {
            heard += " (" + call + ")";
        }
        told += heard.empty() ? "" : "  " + what + ": " + heard + '\n';
    }

    // Each event, of the source's place and of others.
    void TellAll()
    {
        TellAll("Ridge", 2);
        TellAll("Ridge", 3);
        TellAll("Harbour", 2);
    }

    void TellAll(const std::string& site, std::uint8_t number)
    {
        const std::string of = std::string(" of ") + site + ' ' + std::to_string(number);
        Tell("configuration" + of, [&] { Configure({10, 20, 80, 90}, site, number); });
        for (const float value : {5.0F, 10.0F, 15.0F, 20.0F, 50.0F, 80.0F, 85.0F, 90.0F, 95.0F, NoData}) {
            Tell(Decimal(value) + of, [&] { Read(value, value == 50 ? 0 : 1, site, number); });
        }
        Tell("configuration again" + of, [&] { Configure({10, 20, 80, 90}, site, number); });
        for (const std::int32_t status : {4, 5, 6}) {
            Tell("connected " + std::to_string(status) + of, [&] { server.Connected.Raise(site, status); });
        }
        Tell("remote" + of, [&] { server.RemoteLocalChange.Raise(site, number, false); });
        Tell("local" + of, [&] { server.RemoteLocalChange.Raise(site, number, true); });
        Tell("no alarm of the unit" + of, [&] { server.AlarmFlagChange.Raise(site, number, false, true); });
        Tell("no alarm of the site" + of, [&] { server.AlarmFlagChange.Raise(site, number, true, false); });
        for (int flag = 0; flag < 6; ++flag) {
            const auto is = [&](int which) { return which == flag; };
            Tell("flag " + std::to_string(flag) + of, [&] {
                server.FlagReport.Raise({site, number, is(0), is(1), is(2), is(3), is(4), is(5)});
            });
        }
        Tell("macro 1 runs" + of, [&] { server.MacroStatus.Raise(site, number, 1, true); });
        Tell("macro 2 ends" + of, [&] { server.MacroStatus.Raise(site, number, 2, false); });
        Tell("disconnected" + of, [&] { server.Disconnected.Raise(site, 0); });
    }
};

TEST_F(ASource, TakesFromEachEventWhatItsTypeWatches)
{
    for (std::int32_t type = 0; type < 19; ++type) {
        told += "status " + std::to_string(type) + '\n';
        const auto source = Watch(type);
        Tell("refreshed", [&] { source->RefreshData(); });
        TellAll();
        Tell("refreshed", [&] { source->RefreshData(); });
        source->Set(&clsBlnDataSource::Site, "Nowhere");
        Tell("refreshed nowhere", [&] { source->RefreshData(); });
        TellAll();
    }
    told += "meter\n";
    clsMtrDataSource meter(live, owner);
    Place(meter);
    Tell("refreshed", [&] { meter.RefreshData(); });
    TellAll();
    Tell("refreshed", [&] { meter.RefreshData(); });
    Read(7);
    Tell("refreshed with data", [&] { meter.RefreshData(); });
    Tell("of the other type", [&] { Configure({10, 20, 80, 90}, "Ridge", 2, "", 0.5F, 2); });
    Tell("beyond all numbers", [&] { Configure({10, 20, 80, 90}, "Ridge", 2, "", 1.662e35F, 1); });
    Tell("beyond all numbers", [&] { Configure({10, 20, 80, 90}, "Ridge", 2, "", 3e35F, 2); });
    for (int times = 0; times < 2; ++times) {
        Tell("set", [&] { meter.Set(&clsMtrDataSource::DecimalPlaces, 2); });
    }
    ExpectAsKept(told, "sources.txt");
}

TEST_F(ASource, OfAnActionIsLockedForTheFirstConditionThatFailsAndRunsOtherwise)
{
    FakeFiles files;
    files.PutText("damaged.qvw", "QUOR4VIEW");
    live.ViewFiles = &files;
    for (std::int32_t type = 0; type < 10; ++type) {
        told += "action " + std::to_string(type) + '\n';
        clsCmdDataSource source(live, owner);
        lock = &source;
        source.Set(&clsCmdDataSource::CmdDataType, type);
        Place(source);
        const auto run = [&](std::uint8_t shift = 0) {
            Tell("run", [&] { source.RunCommand(shift); });
            while (!boxes.shown.empty()) {
                told += "    " + boxes.shown.back().text + '\n';
                boxes.shown.pop_back();
            }
        };
        run();
        Tell("refreshed", [&] { source.RefreshData(); });
        run();
        source.Set(&clsCmdDataSource::CtrlClick, true);
        run();
        run(clsCmdDataSource::ctrlKey);
        source.Set(&clsCmdDataSource::CtrlClick, false);
        login.rightsHeld = {};
        Tell("without a right", [&] { login.EndLogOn(true); });
        TellAll();
        Tell("connected", [&] { server.Connected.Raise("Ridge", 5); });
        Tell("remote", [&] { server.RemoteLocalChange.Raise("Ridge", 9, false); });
        run();
        for (const std::int16_t right : {rights::issueCommands, rights::runMacros, rights::clearAlarms}) {
            login.rightsHeld = {right};
            Tell("right " + std::to_string(right), [&] { login.EndLogOn(true); });
        }
        login.rightsHeld = FakeLogin().rightsHeld;
        Tell("logon failed", [&] { login.EndLogOn(false); });
        Tell("logged on", [&] { login.EndLogOn(true); });
        Tell("logged off", [&] { login.EndSession(); });
        login.isLoggedOn = true;
        source.Set(&clsCmdDataSource::Site, "damaged.qvw");
        Tell("of a view", [&] { source.RefreshData(); });
    }
    ExpectAsKept(told, "actions.txt");
}

TEST_F(ASource, PassesNoLimitThatIsNotKnownAndTakesNoFlagAndNoChannelThatIsNone)
{
    const auto read = [&](std::initializer_list<float> values, std::int16_t bits = 0) {
        for (const float value : values) {
            Tell(Decimal(value) + ", bits " + std::to_string(bits), [&] { Read(value, bits); });
        }
    };
    for (std::int32_t type = watch::belowSecondLower; type <= watch::outsideLimits; ++type) {
        told += "status " + std::to_string(type) + '\n';
        const auto source = Watch(type);
        read({-20000, 95}); // nothing is known yet
        for (const std::vector<float>& limits : std::vector<std::vector<float>>{{20, 10, 90, 80},
                                                                                {NoData, 20, 80, 90},
                                                                                {10, NoData, 80, 90},
                                                                                {10, 20, NoData, 90},
                                                                                {10, 20, 80, NoData}}) {
            Tell("configuration", [&] { Configure(limits); });
            read({-20000, 9.5F, 10, 15, 20, 50, 80, 85, 90, 95});
        }
        Read(std::numeric_limits<float>::quiet_NaN());
        Tell("what is no number is a value", [&] { Configure({10, 20, 80, 90}); });
    }
    auto macro = Watch(watch::macroRunning);
    for (const char* flag :
         {"True", "fALSE", "-1", "0", "2.5e-3", "", "yes", "nan", "inf", "0x1", " 1", "1 ", "0,5", "1e999"}) {
        Tell(std::string("flag ") + flag, [&] { Configure({}, "Ridge", 2, flag); });
    }
    macro.reset();
    for (const int channel : {0, 16, 17, 31, 32, 255}) {
        told += "channel " + std::to_string(channel) + '\n';
        const auto source = Watch(watch::statusOn, static_cast<std::uint8_t>(channel));
        Tell("configuration", [&] { Configure({}); });
        read({0}, 1);
        read({0}, -32768);
    }
    ExpectAsKept(told, "limits_and_flags.txt");
}

TEST_F(ASource, FollowsANewBindingAndHearsNothingInDesignMode)
{
    const auto source = Watch(watch::statusOn);
    source->Set(&clsBlnDataSource::Site, "Harbour");
    source->Set(&clsBlnDataSource::Unit, 7);
    Read(0, 1);
    EXPECT_EQ(owner.Take(), "");
    Read(0, 1, "Harbour", 7);
    EXPECT_EQ(owner.Take(), "1m");
    live.DesignMode = true;
    const auto silent = Watch(watch::statusOn);
    Read(0, 1);
    EXPECT_EQ(owner.Take(), "");
}

TEST_F(ASource, NamesEveryUnitSomehowAndFindsWhatIsBeforeAFailure)
{
    server.Add("Port").Add(16);
    server.Add("Broken").fails = true;
    EXPECT_EQ(UnitCaption(&server, "Ridge", 2), "Exciter");
    EXPECT_EQ(UnitCaption(&server, "Port", 16), "Voice Interface");
    EXPECT_EQ(UnitCaption(&server, "port", 16), "Unit 16") << "no such site";
    EXPECT_EQ(UnitCaption(nullptr, "Port", 16), "Unit 16");
    EXPECT_TRUE(SiteExists(&server, "Port"));
    EXPECT_TRUE(UnitExists(&server, "Ridge", 2));
    EXPECT_FALSE(UnitExists(&server, "Ridge", 3));
    EXPECT_FALSE(UnitExists(nullptr, "Ridge", 2));
    EXPECT_THROW(SiteExists(&server, "port"), Failure);
    EXPECT_THROW(UnitExists(&server, "Nowhere", 2), Failure);
}

} // namespace
