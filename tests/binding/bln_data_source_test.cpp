#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "tests/support/fake_server.h"

#include <gtest/gtest.h>

namespace quor {
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
    const auto lost = Watch(watch::primaryPath);
    lost->Set(&clsBlnDataSource::Site, "Nowhere");
    lost->RefreshData();
    EXPECT_EQ(owner.Take(), "[Connected|Not Connected]0m");
}

TEST_F(AStatusSource, EndsAHandlerSilentlyWhereAChannelIsOutOfReach)
{
    for (const int channel : {0, 17, 255}) {
        const auto source = Watch(watch::statusOn, static_cast<std::uint8_t>(channel));
        EXPECT_EQ(AllEvents("Ridge", 2), "///0m////") << channel;
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
} // namespace quor
