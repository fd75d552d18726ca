#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "format/record.h"
#include "tests/test.h"

namespace {

// A source of a status, and what happens when it tells its value.
struct Watcher final : BlnOwner {
    explicit Watcher(Live& live, std::int32_t type = watch::statusOn) : source(live, *this)
    {
        source.Set(&clsBlnDataSource::BlnDataType, type);
        source.Set(&clsBlnDataSource::Channel, 1);
        source.Set(&clsBlnDataSource::Site, "Ridge");
    }
    void m_BlnDataSource_UpdateBlnData(bool /*value*/, bool /*mute*/) override
    {
        ++updates;
        onUpdate();
    }
    void m_BlnDataSource_LabelData(const std::string& /*on*/, const std::string& /*off*/) override { onLabel(); }

    std::function<void()> onUpdate = [] {};
    std::function<void()> onLabel = [] {};
    int updates = 0;
    clsBlnDataSource source;
};

struct TheRouter : testing::Test {
    FakeServer server;
    Live live;
    std::vector<std::unique_ptr<Watcher>> watchers;

    TheRouter()
    {
        live.Server = &server;
        for (int index = 0; index < 5; ++index) {
            watchers.push_back(std::make_unique<Watcher>(live));
        }
    }
    void Raise(const std::string& site = "Ridge") { server.Values.Raise({site, 0, 0, 1, 0, 0, 0, {}}); }
};

TEST_F(TheRouter, BearsThatAListenerEndsItselfOrOthersDuringAnEvent)
{
    watchers[0]->onUpdate = [&] { watchers[1].reset(); };
    watchers[2]->onUpdate = [&] { watchers[2].reset(); };
    watchers[3]->onUpdate = [&] { watchers[0].reset(); };
    Raise();
    EXPECT_EQ(watchers[2], nullptr) << "nobody is passed over when the next one leaves";
    EXPECT_EQ(watchers[4]->updates, 1);
    Raise();
    EXPECT_EQ(watchers[3]->updates, 2);
}

TEST_F(TheRouter, BearsThatTheCaptionsEndTheirSource)
{
    static int updates = 0;
    const auto endByLabel = [&](std::int32_t type) -> Watcher& {
        watchers[0] = std::make_unique<Watcher>(live, type);
        watchers[0]->onUpdate = [] { ++updates; };
        watchers[0]->onLabel = [&] { watchers[0].reset(); };
        return *watchers[0];
    };
    endByLabel(watch::anyAlarms).source.RefreshData();
    EXPECT_EQ(watchers[0], nullptr);
    endByLabel(watch::macroRunning);
    ConfigDataEvent config{"Ridge", 0, {}, {}, {}, {}, {}, {}, {}};
    config.MacroNames = {{"Warm up", "True"}, 2};
    server.ConfigData.Raise(config);
    EXPECT_EQ(watchers[0], nullptr);
    EXPECT_EQ(updates, 0);
}

TEST_F(TheRouter, LetsAListenerMoveAndMakeOthersDuringAnEvent)
{
    Watcher& mover = *watchers[0];
    mover.onUpdate = [&] {
        mover.source.Set(&clsBlnDataSource::Site, "Harbour");
        watchers.push_back(std::make_unique<Watcher>(live));
    };
    Raise();
    EXPECT_EQ(watchers[1]->updates, 1);
    EXPECT_EQ(watchers.back()->updates, 0) << "it waits for the next event";
    Raise("Harbour");
    EXPECT_EQ(mover.updates, 2);
}

TEST_F(TheRouter, KeepsThePlaceOfAListenerThatIsWritten)
{
    std::string order;
    for (const std::size_t index : {0U, 1U}) {
        watchers[index]->onUpdate = [&order, index] { order += std::to_string(index); };
    }
    std::vector<std::uint8_t> record;
    RecordWriter writer(record, 3);
    watchers[0]->source.Fields(writer);
    Raise();
    EXPECT_EQ(order, "01");
}

TEST_F(TheRouter, ForgetsSitesThatNobodyFollows)
{
    for (int index = 0; index < 1000; ++index) {
        watchers[0]->source.Set(&clsBlnDataSource::Site, "Site " + std::to_string(index));
    }
    EXPECT_LE(live.Routes.SiteCount(), 64U);
    Raise("Site 999");
    EXPECT_EQ(watchers[0]->updates, 1);
}

} // namespace
