#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "format/record.h"
#include "tests/test.h"

namespace {

struct Owner final : BlnOwner {
    std::function<void()> onUpdate;
    int updates = 0;

    void m_BlnDataSource_UpdateBlnData(bool /*value*/, bool /*mute*/) override
    {
        ++updates;
        if (onUpdate) {
            onUpdate();
        }
    }
};

struct Watcher {
    explicit Watcher(Live& live, const std::string& site = "Ridge") : source(live, owner)
    {
        source.Set(&clsBlnDataSource::BlnDataType, watch::statusOn);
        source.Set(&clsBlnDataSource::Channel, 1);
        source.Set(&clsBlnDataSource::Site, site);
    }
    Owner owner;
    clsBlnDataSource source;
};

struct TheRouter : testing::Test {
    FakeServer server;
    Live live;
    TheRouter() { live.Server = &server; }
    void Raise(const std::string& site = "Ridge") { server.Values.Raise({site, 0, 0, 1, 0, 0, 0, {}}); }
};

TEST_F(TheRouter, BearsThatAListenerEndsItselfOrOthersDuringAnEvent)
{
    std::vector<std::unique_ptr<Watcher>> watchers;
    for (int index = 0; index < 5; ++index) {
        watchers.push_back(std::make_unique<Watcher>(live));
    }
    watchers[0]->owner.onUpdate = [&] { watchers[1].reset(); };
    watchers[2]->owner.onUpdate = [&] { watchers[2].reset(); };
    watchers[3]->owner.onUpdate = [&] { watchers[0].reset(); };
    Raise();
    EXPECT_EQ(watchers[4]->owner.updates, 1);
    Raise();
    EXPECT_EQ(watchers[3]->owner.updates, 2);
}

TEST_F(TheRouter, BearsThatTheCaptionsEndTheirSource)
{
    struct Ender final : BlnOwner {
        std::unique_ptr<clsBlnDataSource> source;
        void m_BlnDataSource_UpdateBlnData(bool /*value*/, bool /*mute*/) override { ADD_FAILURE() << "it is gone"; }
        void m_BlnDataSource_LabelData(const std::string& /*on*/, const std::string& /*off*/) override
        {
            source.reset();
        }
    };
    Ender ender;
    ender.source = std::make_unique<clsBlnDataSource>(live, ender);
    ender.source->Set(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    ender.source->RefreshData();
    EXPECT_EQ(ender.source, nullptr);
    ender.source = std::make_unique<clsBlnDataSource>(live, ender);
    ender.source->Set(&clsBlnDataSource::BlnDataType, watch::macroRunning);
    ender.source->Set(&clsBlnDataSource::Channel, 1);
    ender.source->Set(&clsBlnDataSource::Site, "Ridge");
    ConfigDataEvent config{"Ridge", 0, {}, {}, {}, {}, {}, {}, {}};
    config.MacroNames = {{"Warm up", "True"}, 2};
    server.ConfigData.Raise(config);
    EXPECT_EQ(ender.source, nullptr);
}

TEST_F(TheRouter, LetsAListenerMoveAndMakeOthersDuringAnEvent)
{
    Watcher mover(live);
    Watcher second(live);
    std::vector<std::unique_ptr<Watcher>> born;
    mover.owner.onUpdate = [&] {
        mover.source.Set(&clsBlnDataSource::Site, "Harbour");
        born.push_back(std::make_unique<Watcher>(live));
    };
    Raise();
    EXPECT_EQ(second.owner.updates, 1);
    EXPECT_EQ(born.front()->owner.updates, 0) << "it waits for the next event";
    Raise("Harbour");
    EXPECT_EQ(mover.owner.updates, 2);
}

TEST_F(TheRouter, KeepsThePlaceOfAListenerThatIsWritten)
{
    Watcher first(live);
    Watcher second(live);
    std::string order;
    first.owner.onUpdate = [&] { order += '1'; };
    second.owner.onUpdate = [&] { order += '2'; };
    std::vector<std::uint8_t> record;
    RecordWriter writer(record, 3);
    first.source.Fields(writer);
    Raise();
    EXPECT_EQ(order, "12");
}

TEST_F(TheRouter, ForgetsSitesThatNobodyFollows)
{
    Watcher watcher(live);
    for (int index = 0; index < 1000; ++index) {
        watcher.source.Set(&clsBlnDataSource::Site, "Site " + std::to_string(index));
    }
    EXPECT_LE(live.Routes.SiteCount(), 64U);
    Raise("Site 999");
    EXPECT_EQ(watcher.owner.updates, 1);
}

} // namespace
