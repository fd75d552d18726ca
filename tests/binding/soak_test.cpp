// A simulated day with 2,000 sources: each hears what its twin hears that every event is brought to, and nothing grows.

#include "base/guard.h"
#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "servers/simulator/simulated_server.h"
#include "servers/simulator/sites_file.h"
#include "tests/test.h"

#include <malloc.h>

namespace {

struct Watched final : BlnOwner {
    explicit Watched(Live& live) : source(live, *this) {}

    void m_BlnDataSource_UpdateBlnData(bool value, bool mute) override { told = {std::get<0>(told) + 1, value, mute}; }

    clsBlnDataSource source;
    std::tuple<int, bool, bool> told; // updates, and the last of them
};

using Places = std::vector<std::pair<std::string, std::uint8_t>>;

// Whether an event of a site, and of a unit if it names one, concerns the source.
template <class First, class... Rest> bool Concerns(const clsBlnDataSource& source, const First& first, Rest... rest)
{
    std::string_view site;
    std::optional<std::uint8_t> unit;
    if constexpr (requires { first.UnitNum; }) {
        site = first.NetName;
        unit = first.UnitNum;
    } else {
        site = first;
        if constexpr (std::is_same_v<std::tuple_element_t<0, std::tuple<Rest...>>, std::uint8_t>) {
            unit = std::get<0>(std::tuple(rest...));
        }
    }
    const std::int32_t type = source.BlnDataType();
    return type == watch::anyAlarms ||
           (site == source.Site() && (!unit || unit == source.Unit() || type == watch::siteAlarms));
}

// Sources that are bound alike, time after time.
struct Crowd {
    static constexpr std::size_t sources = 2000;

    Crowd(Live& of, const Places& to) : live(of), places(to)
    {
        for (std::size_t index = 0; index < sources; ++index) {
            Make(index, index);
        }
    }

    void Make(std::size_t index, std::size_t number)
    {
        all[index] = std::make_unique<Watched>(live);
        Bind(index, number, number % 19, number % 16 + 1);
    }
    void Bind(std::size_t index, std::size_t place, std::size_t type, std::size_t channel)
    {
        clsBlnDataSource& source = all[index]->source;
        source.Set(&clsBlnDataSource::Site, places[place % places.size()].first);
        source.Set(&clsBlnDataSource::Unit, places[place % places.size()].second);
        source.Set(&clsBlnDataSource::BlnDataType, static_cast<std::int32_t>(type));
        source.Set(&clsBlnDataSource::Channel, static_cast<std::uint8_t>(channel));
    }
    // Some are made anew and some bound to something else.
    void Change(std::size_t hour)
    {
        for (std::size_t index = hour; index < sources; index += 40) {
            Make(index, index * 7 + hour);
            Bind((index + 20) % sources, index, (index + hour) % 19, 3);
        }
    }

    Live& live;
    const Places& places;
    std::array<std::unique_ptr<Watched>, sources> all;
};

TEST(TheDay, BringsEachUpdateThatShouldArriveAndKeepsNothing)
{
    constexpr int second = 1000;
    constexpr int stepsAnHour = 60;
    FakeTimers timers;
    SimulatedServer server(timers, BuiltInSites(), 11, {second, 3600 / stepsAnHour});
    Live live;
    Live apart{true}; // its sources hear nothing by themselves
    live.Server = &server;
    apart.Server = &server;
    Places places;
    server.Sites().ForEach([&](TeskSite& site) {
        site.Units().ForEach([&](TeskUnit& unit) { places.emplace_back(site.NetName(), unit.UnitNum()); });
    });
    Crowd routed(live, places);
    Crowd alone(apart, places);
    std::vector<Subscription> subscriptions;
    const auto bring = [&](auto& event, auto handler) {
        subscriptions.push_back(event.Subscribe([&alone, handler](const auto&... arguments) {
            for (const std::unique_ptr<Watched>& each : alone.all) {
                ServerListener& listener = each->source;
                if (Concerns(each->source, arguments...)) {
                    IgnoreFailure([&] { (listener.*handler)(arguments...); });
                }
            }
        }));
    };
    bring(server.ConfigData, &ServerListener::m_Srv_ConfigData);
    bring(server.Connected, &ServerListener::m_Srv_Connected);
    bring(server.Disconnected, &ServerListener::m_Srv_Disconnected);
    bring(server.RemoteLocalChange, &ServerListener::m_Srv_RemoteLocalChange);
    bring(server.AlarmFlagChange, &ServerListener::m_Srv_AlarmFlagChange);
    bring(server.FlagReport, &ServerListener::m_Srv_FlagReport);
    bring(server.MacroStatus, &ServerListener::m_Srv_MacroStatus);
    bring(server.Values, &ServerListener::m_Srv_Values);
    server.Start();
    std::size_t bytes = 0;
    long updates = 0;
    for (std::size_t hour = 0; hour < 24; ++hour) {
        timers.Advance(stepsAnHour * second);
        for (std::size_t index = 0; index < Crowd::sources; ++index) {
            ASSERT_EQ(routed.all[index]->told, alone.all[index]->told)
                << "hour " << hour << " source " << index << " type " << routed.all[index]->source.BlnDataType();
            updates += std::get<0>(routed.all[index]->told);
        }
        if (hour == 1) {
            bytes = mallinfo2().uordblks;
        }
        routed.Change(hour);
        alone.Change(hour);
    }
    EXPECT_GT(updates, 1'000'000);
    EXPECT_LT(mallinfo2().uordblks, bytes + 100'000) << "what one event in twenty kept would show";
}

} // namespace
