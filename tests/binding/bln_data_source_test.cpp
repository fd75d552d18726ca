#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "tests/test.h"

namespace {

// What came of the events: "1m" is true and muted, "[on|off]" captions.
class Owner final : public BlnOwner {
public:
    std::string Take() { return std::exchange(m_text, {}); }

private:
    void m_BlnDataSource_UpdateBlnData(bool value, bool mute) override
    {
        m_text += value ? "1" : "0";
        m_text += mute ? "m" : "";
    }
    void m_BlnDataSource_LabelData(const std::string& on, const std::string& off) override
    {
        m_text += "[" + on + "|" + off + "]";
    }

    std::string m_text;
};

ConfigDataEvent ConfigOf(const std::string& site, std::uint8_t unit)
{
    ConfigDataEvent event{site, unit, {}, {}, {}, {}, {}, {}, {}};
    event.Limits = {{10, 20, 80, 90}, 4, 3, 7};
    event.CmdLabels = {{"Raise", "Lower"}, 2};
    event.MtrLabels = ServerArray<std::string>({"Power"}, 1);
    event.StatusLabels = {{"Closed", "Open"}, 2};
    event.MacroNames = {{"Warm up", "True"}, 2};
    return event;
}

ValuesEvent ValuesOf(const std::string& site, std::uint8_t unit, float value, std::int16_t bits)
{
    return {site, unit, 0, bits, bits, bits, bits, ServerArray<float>({value}, 1)};
}

struct AStatusSource : testing::Test {
    FakeServer server;
    Live live;
    Owner owner;

    AStatusSource()
    {
        live.Server = &server;
        FakeSite& ridge = server.Add("Ridge");
        ridge.Add(2).eventsPending = true;
        server.Add("Harbour").siteAlarms = true;
    }

    std::unique_ptr<clsBlnDataSource> Watch(std::int32_t type, std::uint8_t channel = 1)
    {
        auto source = std::make_unique<clsBlnDataSource>(live, owner);
        source->Set(&clsBlnDataSource::BlnDataType, type);
        source->Set(&clsBlnDataSource::Site, "Ridge");
        source->Set(&clsBlnDataSource::Unit, 2);
        source->Set(&clsBlnDataSource::Channel, channel);
        return source;
    }

    // Every event once, for a site and unit; what each brought, with a slash between.
    std::string AllEvents(const std::string& site, std::uint8_t unit)
    {
        server.ConfigData.Raise(ConfigOf(site, unit));
        std::string text = owner.Take() + "/";
        server.Values.Raise(ValuesOf(site, unit, 95, 1));
        text += owner.Take() + "/";
        server.Connected.Raise(site, 5);
        text += owner.Take() + "/";
        server.Disconnected.Raise(site, 0);
        text += owner.Take() + "/";
        server.AlarmFlagChange.Raise(site, unit, true, true);
        text += owner.Take() + "/";
        server.FlagReport.Raise({site, unit, true, true, true, true, false, true});
        text += owner.Take() + "/";
        server.MacroStatus.Raise(site, unit, 1, true);
        text += owner.Take() + "/";
        server.RemoteLocalChange.Raise(site, unit, true);
        return text + owner.Take();
    }
};

// By type: what the eight events bring to a source of the site and unit.
const char* const matching[] = {
    "///0m////",
    "[Power is below 2nd lower limit|Power is in tolerance]/0m//0m////",
    "[Power is below 1st lower limit|Power is in tolerance]/0m//0m////",
    "[Power is above 1st upper limit|Power is in tolerance]/1m//0m////",
    "[Power is above 2nd upper limit|Power is in tolerance]/1m//0m////",
    "[Power is out of tolerance|Power is in tolerance]/1m//0m////",
    "//1/0m////",
    "///0m////",
    "///0m/1/1//",
    "///0m/1/1//",
    "///1/0/1//",
    "[Raise (Engaged)|Raise (Disengaged)]/0//0m////",
    "[Lower (Engaged)|Lower (Disengaged)]/1//0m////",
    "[Power (Muted)|Power (Unmuted)]/1//0m////",
    "[Closed (Muted)|Closed (Unmuted)]/1//0m////",
    "[Local Control|Remote Control]///0m//1//1",
    "[Captures pending on Unit 2|No captures pending on Unit 2]/1//0m//1//",
    "[Warm up (Running)|Warm up (Idle)]1///0m///1/",
    "[Open|Closed]/1m//0m////",
};

TEST_F(AStatusSource, TakesFromEachEventWhatItsTypeWatches)
{
    for (std::int32_t type = 0; type < 19; ++type) {
        const auto source = Watch(type);
        EXPECT_EQ(AllEvents("Ridge", 2), matching[type]) << "type " << type;
    }
}

TEST_F(AStatusSource, IgnoresOtherSitesAndUnitsUnlessItWatchesThem)
{
    for (std::int32_t type = 0; type < 19; ++type) {
        const auto source = Watch(type);
        const std::string otherSite = type == watch::anyAlarms ? "///0/0/1//" : "///////";
        EXPECT_EQ(AllEvents("Harbour", 2), otherSite) << "type " << type;
        std::string otherUnit = "///0m////";
        if (type == watch::anyAlarms) {
            otherUnit = "///1/0/1//";
        } else if (type == watch::siteAlarms) {
            otherUnit = "///0m/1/1//";
        } else if (type == watch::primaryPath) {
            otherUnit = "//1/0m////";
        }
        EXPECT_EQ(AllEvents("Ridge", 3), otherUnit) << "type " << type;
    }
}

// By type: whether 9.5, 10, 15, 20, 50, 80, 85, 90 and 95 are outside of it.
struct LimitCase {
    std::vector<float> limits;
    const char* outside[5];
};

const LimitCase limitCases[] = {
    {{10, 20, 80, 90}, {"100000000", "111000000", "000000111", "000000001", "111000111"}},
    {{20, 10, 90, 80}, {"111000000", "100000000", "000000001", "000000111", "111000111"}},
};

TEST_F(AStatusSource, ComparesAValueWithEachLimitByItself)
{
    for (const LimitCase& each : limitCases) {
        ConfigDataEvent config = ConfigOf("Ridge", 2);
        config.Limits = {each.limits, 4};
        for (std::int32_t type = watch::belowSecondLower; type <= watch::outsideLimits; ++type) {
            const auto source = Watch(type);
            server.ConfigData.Raise(config);
            owner.Take();
            for (const float value : {9.5F, 10.0F, 15.0F, 20.0F, 50.0F, 80.0F, 85.0F, 90.0F, 95.0F}) {
                server.Values.Raise(ValuesOf("Ridge", 2, value, 0));
            }
            EXPECT_EQ(owner.Take(), each.outside[type - 1]) << "type " << type;
        }
    }
}

TEST_F(AStatusSource, PassesNoLimitThatIsNotKnown)
{
    for (std::int32_t type = watch::belowSecondLower; type <= watch::outsideLimits; ++type) {
        for (std::size_t unknown = 0; unknown < 4; ++unknown) {
            ConfigDataEvent config = ConfigOf("Ridge", 2);
            std::vector<float> limits = {10, 20, 80, 90};
            limits[unknown] = NoData;
            config.Limits = {limits, 4};
            const auto source = Watch(type);
            const auto after = [&](float value) {
                server.Values.Raise(ValuesOf("Ridge", 2, value, 0));
                return owner.Take();
            };
            EXPECT_EQ(after(-20000) + after(95), "00") << "nothing is known yet of type " << type;
            server.ConfigData.Raise(config);
            owner.Take();
            // For all four it is the second lower alone that must be known.
            const std::size_t asked = type == watch::outsideLimits ? 0 : static_cast<std::size_t>(type - 1);
            const bool isUpper = type == watch::aboveFirstUpper || type == watch::aboveSecondUpper;
            EXPECT_EQ(after(isUpper ? 95 : -20000), unknown == asked ? "0" : "1") << type << ' ' << unknown;
        }
    }
}

TEST_F(AStatusSource, TakesAFlagThatIsABooleanOrANumberAndNoOther)
{
    const std::pair<const char*, const char*> cases[] = {
        {"True", "1"}, {"fALSE", "0"}, {"-1", "1"}, {"0", "0"}, {"2.5e-3", "1"}, {"", ""},    {"yes", ""},
        {"nan", ""},   {"inf", ""},    {"0x1", ""}, {" 1", ""}, {"1 ", ""},      {"0,5", ""}, {"1e999", ""},
    };
    const auto source = Watch(watch::macroRunning);
    for (const auto& [flag, expected] : cases) {
        ConfigDataEvent config = ConfigOf("Ridge", 2);
        config.MacroNames = {{"Warm up", flag}, 2};
        server.ConfigData.Raise(config);
        EXPECT_EQ(owner.Take(), std::string("[Warm up (Running)|Warm up (Idle)]") + expected) << flag;
    }
}

TEST_F(AStatusSource, WorksOutALimitWhicheverOfValueAndLimitComesFirst)
{
    const auto source = Watch(watch::belowSecondLower);
    server.Values.Raise(ValuesOf("Ridge", 2, 5, 0));
    EXPECT_EQ(owner.Take(), "0") << "no limit is known yet";
    server.ConfigData.Raise(ConfigOf("Ridge", 2));
    EXPECT_EQ(owner.Take(), "[Power is below 2nd lower limit|Power is in tolerance]1");
    for (const float value : {10.0F, 10.5F}) {
        server.Values.Raise(ValuesOf("Ridge", 2, value, 0));
        EXPECT_EQ(owner.Take(), "0") << "on the limit is in tolerance";
    }
    server.Values.Raise(ValuesOf("Ridge", 2, NoData, 0));
    EXPECT_EQ(owner.Take(), "1");
    server.ConfigData.Raise(ConfigOf("Ridge", 2));
    EXPECT_EQ(owner.Take(), "[Power is below 2nd lower limit|Power is in tolerance]") << "that was no value";
    server.Values.Raise(ValuesOf("Ridge", 2, std::numeric_limits<float>::quiet_NaN(), 0));
    server.ConfigData.Raise(ConfigOf("Ridge", 2));
    EXPECT_EQ(owner.Take(), "0[Power is below 2nd lower limit|Power is in tolerance]0") << "below no limit";
}

TEST_F(AStatusSource, RefreshesFromWhatTheServerKnowsAndAsksForTheRest)
{
    const std::pair<std::int32_t, const char*> cases[] = {
        {watch::nothing, "0"},
        {watch::primaryPath, "[Connected|Not Connected]1"},
        {watch::backupPath, "[Connected|Not Connected]0"},
        {watch::siteAlarms, "[Alarms Present on Ridge|No Alarms Present on Ridge]0"},
        {watch::anyAlarms, "[Alarm(s) Present|No Alarms Present]0"},
        {watch::statusOn, ""},
    };
    for (const auto& [type, expected] : cases) {
        const auto source = Watch(type);
        source->RefreshData();
        EXPECT_EQ(owner.Take(), expected) << "type " << type;
    }
    EXPECT_EQ(server.calls, std::vector<std::string>{"Sites.Item(\"Ridge\").Units.Item(2).RequestConfig"});
    const auto bound = Watch(watch::statusOn);
    server.Values.Raise(ValuesOf("Ridge", 2, 0, 1));
    bound->RefreshData();
    server.Disconnected.Raise("Ridge", 0);
    bound->RefreshData();
    EXPECT_EQ(owner.Take(), "1m0m");
    EXPECT_EQ(server.calls.size(), 1U) << "it has had data and doesn't ask again";
    const auto lost = Watch(watch::primaryPath);
    lost->Set(&clsBlnDataSource::Site, "Nowhere");
    lost->RefreshData();
    EXPECT_EQ(owner.Take(), "[Connected|Not Connected]0m");
}

TEST_F(AStatusSource, EndsAHandlerSilentlyWhereAChannelIsOutOfReach)
{
    for (const int channel : {0, 32, 255}) {
        const auto source = Watch(watch::statusOn, static_cast<std::uint8_t>(channel));
        EXPECT_EQ(AllEvents("Ridge", 2), "///0m////") << channel;
    }
}

TEST_F(AStatusSource, ReadsTheSignOfTheMaskBehindItsSixteenChannels)
{
    for (const int channel : {17, 31}) {
        const auto source = Watch(watch::statusOn, static_cast<std::uint8_t>(channel));
        EXPECT_EQ(AllEvents("Ridge", 2), "/0//0m////") << channel;
        server.Values.Raise(ValuesOf("Ridge", 2, 0, -32768));
        EXPECT_EQ(owner.Take(), "1m") << channel;
    }
}

TEST_F(AStatusSource, FollowsANewBindingAndHearsNothingInDesignMode)
{
    const auto source = Watch(watch::statusOn);
    source->Set(&clsBlnDataSource::Site, "Harbour");
    source->Set(&clsBlnDataSource::Unit, 7);
    server.Values.Raise(ValuesOf("Ridge", 2, 0, 1));
    EXPECT_EQ(owner.Take(), "");
    server.Values.Raise(ValuesOf("Harbour", 7, 0, 1));
    EXPECT_EQ(owner.Take(), "1m");
    live.DesignMode = true;
    const auto silent = Watch(watch::statusOn);
    server.Values.Raise(ValuesOf("Ridge", 2, 0, 1));
    EXPECT_EQ(owner.Take(), "");
}

} // namespace
