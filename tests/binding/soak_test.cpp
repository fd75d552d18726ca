// A simulated day with 2,000 sources: each hears what its twin hears that every event is brought to, and nothing grows.

#include "base/guard.h"
#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "servers/simulator/simulated_server.h"
#include "servers/simulator/sites_file.h"
#include "tests/test.h"

#include <atomic>
#include <cstdlib>
#include <new>
#include <tuple>

namespace {
std::atomic<long> blocksInUse = 0;
}

void* operator new(std::size_t size)
{
    if (void* block = std::malloc(size)) {
        ++blocksInUse;
        return block;
    }
    throw std::bad_alloc();
}

void operator delete(void* block) noexcept
{
    blocksInUse -= block == nullptr ? 0 : 1;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    blocksInUse -= block == nullptr ? 0 : 1;
    std::free(block);
}

namespace {

struct Place {
    std::string site;
    std::uint8_t unit;
};

// A source, and what it told.
struct Watched final : BlnOwner {
    explicit Watched(Live& live) : source(live, *this) {}

    void Bind(const Place& place, std::int32_t type, std::uint8_t channel)
    {
        source.Set(&clsBlnDataSource::Site, place.site);
        source.Set(&clsBlnDataSource::Unit, place.unit);
        source.Set(&clsBlnDataSource::BlnDataType, type);
        source.Set(&clsBlnDataSource::Channel, channel);
    }

    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override
    {
        std::get<0>(told)++;
        std::get<1>(told) = blnValue;
        std::get<2>(told) = blnMute;
    }

    clsBlnDataSource source;
    std::tuple<int, bool, bool> told; // updates, and the last of them
};

struct Twins {
    Twins(Live& live, Live& apart) : routed(live), alone(apart) {}

    void Bind(const Place& place, std::int32_t type, std::uint8_t channel)
    {
        routed.Bind(place, type, channel);
        alone.Bind(place, type, channel);
    }

    Watched routed;
    Watched alone;
};

class TheDay : public testing::Test {
protected:
    static constexpr int sources = 2000;
    static constexpr int millisecondsAStep = 1000;
    static constexpr int secondsAStep = 60;
    static constexpr int stepsAnHour = 3600 / secondsAStep;

    TheDay() : server(timers, BuiltInSites(), 11, {millisecondsAStep, secondsAStep})
    {
        live.Server = &server;
        apart.Server = &server;
        server.Sites().ForEach([&](TeskSite& site) {
            site.Units().ForEach([&](TeskUnit& unit) { places.push_back({site.NetName(), unit.UnitNum()}); });
        });
        for (int index = 0; index < sources; ++index) {
            twins.push_back(Make(index));
        }
        BringAll();
        server.Start();
    }

    std::unique_ptr<Twins> Make(int number)
    {
        auto made = std::make_unique<Twins>(live, apart);
        made->Bind(places[static_cast<std::size_t>(number) % places.size()], number % 19,
                   static_cast<std::uint8_t>(number % 16 + 1));
        return made;
    }

    // Once an hour some are made anew and some bound to something else.
    void Change(int hour)
    {
        for (int index = hour; index < sources; index += 40) {
            const auto at = static_cast<std::size_t>(index);
            twins[at] = Make(index * 7 + hour);
            twins[(at + 20) % twins.size()]->Bind(places[at % places.size()], (index + hour) % 19, 3);
        }
    }

    template <class... Arguments, class... Parameters>
    void Bring(Event<Arguments...>& event, void (ServerListener::*handler)(Parameters...))
    {
        subscriptions.push_back(event.Subscribe([this, handler](Arguments... arguments) {
            for (const std::unique_ptr<Twins>& each : twins) {
                ServerListener& listener = each->alone.source;
                IgnoreFailure([&] { (listener.*handler)(arguments...); });
            }
        }));
    }

    void BringAll()
    {
        Bring(server.ConfigData, &ServerListener::m_Srv_ConfigData);
        Bring(server.Connected, &ServerListener::m_Srv_Connected);
        Bring(server.Disconnected, &ServerListener::m_Srv_Disconnected);
        Bring(server.RemoteLocalChange, &ServerListener::m_Srv_RemoteLocalChange);
        Bring(server.AlarmFlagChange, &ServerListener::m_Srv_AlarmFlagChange);
        Bring(server.FlagReport, &ServerListener::m_Srv_FlagReport);
        Bring(server.MacroStatus, &ServerListener::m_Srv_MacroStatus);
        Bring(server.Values, &ServerListener::m_Srv_Values);
    }

    FakeTimers timers;
    SimulatedServer server;
    Live live;
    Live apart{true}; // its sources hear nothing by themselves
    std::vector<Place> places;
    std::vector<std::unique_ptr<Twins>> twins;
    std::vector<Subscription> subscriptions;
};

TEST_F(TheDay, BringsEachUpdateThatShouldArriveAndKeepsNothing)
{
    long blocks = 0;
    long updates = 0;
    for (int hour = 0; hour < 24; ++hour) {
        timers.Advance(stepsAnHour * millisecondsAStep);
        for (std::size_t index = 0; index < twins.size(); ++index) {
            const Twins& each = *twins[index];
            ASSERT_EQ(each.routed.told, each.alone.told)
                << "hour " << hour << " source " << index << " type " << each.routed.source.BlnDataType();
            updates += std::get<0>(each.routed.told);
        }
        if (hour == 1) {
            blocks = blocksInUse;
        }
        Change(hour);
    }
    EXPECT_GT(updates, 1'000'000);
    EXPECT_LT(blocksInUse - blocks, 2000) << "what one event in ten thousand kept would show";
    twins.clear();
    timers.Advance(stepsAnHour * millisecondsAStep);
}

} // namespace
