// A simulated day with 2,000 sources: what arrives is what should, counted by a second hand, and nothing grows.

#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "binding/simulator/simulated_server.h"
#include "binding/simulator/sites_file.h"
#include "tests/support/fake_timers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <map>
#include <new>

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

namespace quor {
namespace {

// A source, what it told, and what it should have told.
struct Watched final : BlnOwner {
    Watched(Live& live, const std::string& site, std::uint8_t unit, std::int32_t type, std::uint8_t channel)
        : source(live, *this)
    {
        Bind(site, unit, type, channel);
    }

    void Bind(const std::string& site, std::uint8_t unit, std::int32_t type, std::uint8_t channel)
    {
        source.Set(&clsBlnDataSource::Site, site);
        source.Set(&clsBlnDataSource::Unit, unit);
        source.Set(&clsBlnDataSource::BlnDataType, type);
        source.Set(&clsBlnDataSource::Channel, channel);
    }

    void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) override
    {
        ++updates;
        value = blnValue;
        mute = blnMute;
    }

    void Expect(bool expectedValue, bool expectedMute)
    {
        ++expected;
        isKnown = true;
        value2 = expectedValue;
        mute2 = expectedMute;
    }

    // The limits are the source's own affair.
    void ExpectSomeValue(bool expectedMute)
    {
        Expect(value2, expectedMute);
        isKnown = false;
    }

    clsBlnDataSource source;
    bool isKnown = true;     // what it should show
    bool hasReading = false; // has seen a meter's value since it was made
    int updates = 0;
    bool value = false;
    bool mute = false;
    int expected = 0;
    bool value2 = false;
    bool mute2 = false;
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
        server.Sites().ForEach([&](TeskSite& site) {
            site.Units().ForEach([&](TeskUnit& unit) { places.emplace_back(site.NetName(), unit.UnitNum()); });
        });
        Count();
        for (int index = 0; index < sources; ++index) {
            watched.push_back(Make(index));
        }
        Sort();
        server.Start();
    }

    std::unique_ptr<Watched> Make(int number)
    {
        const auto& [site, unit] = places[static_cast<std::size_t>(number) % places.size()];
        return std::make_unique<Watched>(live, site, unit, number % 19, static_cast<std::uint8_t>(number % 16 + 1));
    }

    // Once an hour some are made anew and some bound to something else.
    void Change(int hour)
    {
        for (int index = hour; index < sources; index += 40) {
            const auto at = static_cast<std::size_t>(index);
            watched[at] = Make(index * 7 + hour);
            Watched& rebound = *watched[(at + 20) % watched.size()];
            rebound.Bind(places[at % places.size()].first, places[at % places.size()].second, (index + hour) % 19, 3);
        }
        Sort();
    }

    // Who is bound where, worked out anew after each change.
    void Sort()
    {
        ofUnit.clear();
        ofSite.clear();
        ofAll.clear();
        for (const std::unique_ptr<Watched>& each : watched) {
            const std::string site = each->source.Site();
            ofUnit[site][each->source.Unit()].push_back(each.get());
            ofSite[site].push_back(each.get());
            if (each->source.BlnDataType() == watch::anyAlarms) {
                ofAll.push_back(each.get());
            }
        }
    }

    // Each of the list with its type.
    template <class Visit> static void Each(const std::vector<Watched*>& list, const Visit& visit)
    {
        for (Watched* each : list) {
            visit(*each, each->source.BlnDataType());
        }
    }

    static void Expect(const std::vector<Watched*>& list, std::int32_t type, bool value)
    {
        Each(list, [&](Watched& to, std::int32_t itsType) {
            if (itsType == type) {
                to.Expect(value, false);
            }
        });
    }

    // What each event should cause, worked out from the event alone and with no help of the router.
    void Count()
    {
        const auto keep = [&](Subscription subscription) { subscriptions.push_back(std::move(subscription)); };
        keep(server.Values.Subscribe([&](const ValuesEvent& event) { CountValues(event); }));
        keep(server.ConfigData.Subscribe([&](const ConfigDataEvent& event) { CountConfig(event); }));
        keep(server.FlagReport.Subscribe([&](const FlagReportEvent& event) {
            const std::vector<Watched*>& here = ofUnit[event.NetName][event.UnitNum];
            Expect(ofSite[event.NetName], watch::siteAlarms, event.SiteAlarms);
            Expect(here, watch::unitAlarms, event.UnitAlarms);
            Expect(ofAll, watch::anyAlarms, event.AppAlarms);
            Expect(here, watch::localMode, event.LocalMode);
            Expect(here, watch::capturesPending, event.EventsPending);
        }));
        keep(server.AlarmFlagChange.Subscribe(
            [&](const std::string& site, std::uint8_t unit, bool pending, bool siteAlarms) {
                Expect(ofSite[site], watch::siteAlarms, siteAlarms);
                Expect(ofUnit[site][unit], watch::unitAlarms, pending);
                Expect(ofAll, watch::anyAlarms, server.AppAlarms());
            }));
        keep(server.Connected.Subscribe([&](const std::string& site, std::int32_t status) {
            if (status == 5 || status == 6) {
                Expect(ofSite[site], status == 6 ? watch::backupPath : watch::primaryPath, true);
            }
        }));
        keep(server.Disconnected.Subscribe([&](const std::string& site, std::int32_t) {
            bool others = false;
            server.Sites().ForEach([&](TeskSite& each) { others |= each.NetName() != site && each.SiteAlarms(); });
            Expect(ofAll, watch::anyAlarms, others);
            Each(ofSite[site], [&](Watched& to, std::int32_t type) {
                if (type != watch::anyAlarms) {
                    to.Expect(false, true);
                }
            });
        }));
        keep(server.RemoteLocalChange.Subscribe([&](const std::string& site, std::uint8_t unit, bool local) {
            Expect(ofUnit[site][unit], watch::localMode, local);
        }));
        keep(server.MacroStatus.Subscribe(
            [&](const std::string& site, std::uint8_t unit, std::uint8_t macro, bool running) {
                Each(ofUnit[site][unit], [&](Watched& to, std::int32_t type) {
                    if (type == watch::macroRunning && to.source.Channel() == macro) {
                        to.Expect(running, false);
                    }
                });
            }));
    }

    void CountValues(const ValuesEvent& event)
    {
        const bool pending = server.Sites().Item(event.NetName).Units().Item(event.UnitNum).EventsPending();
        Each(ofUnit[event.NetName][event.UnitNum], [&](Watched& to, std::int32_t type) {
            const int channel = to.source.Channel() - 1;
            const auto bit = [&](std::int16_t mask) { return (mask >> channel & 1) != 0; };
            if (type >= 1 && type <= 5) {
                to.hasReading = true;
                ++limitUpdates;
                to.ExpectSomeValue(bit(event.MeterMutes));
            } else if (type == 11 || type == 12) {
                to.Expect(bit(event.OutPuts) == (type == 12), false);
            } else if (type == 13 || type == 14) {
                to.Expect(bit(type == 13 ? event.MeterMutes : event.StatMutes), false);
            } else if (type == 16) {
                to.Expect(pending, false);
            } else if (type == 18) {
                to.Expect(bit(event.Status), bit(event.StatMutes));
            }
        });
    }

    void CountConfig(const ConfigDataEvent& event)
    {
        Each(ofUnit[event.NetName][event.UnitNum], [&](Watched& to, std::int32_t type) {
            const int channel = to.source.Channel() - 1;
            if (type == 17) {
                to.Expect(event.MacroNames.At(channel, 1) == "True", false);
            } else if (type >= 1 && type <= 5 && to.hasReading) {
                to.ExpectSomeValue(false);
            }
        });
    }

    FakeTimers timers;
    SimulatedServer server;
    Live live;
    std::vector<std::pair<std::string, std::uint8_t>> places;
    std::vector<std::unique_ptr<Watched>> watched;
    std::map<std::string, std::map<std::uint8_t, std::vector<Watched*>>> ofUnit;
    std::map<std::string, std::vector<Watched*>> ofSite;
    std::vector<Watched*> ofAll;
    std::vector<Subscription> subscriptions;
    long limitUpdates = 0;
};

TEST_F(TheDay, BringsEachUpdateThatShouldArriveAndKeepsNothing)
{
    long blocks = 0;
    long updates = 0;
    for (int hour = 0; hour < 24; ++hour) {
        timers.Advance(stepsAnHour * millisecondsAStep);
        for (std::size_t index = 0; index < watched.size(); ++index) {
            const Watched& each = *watched[index];
            ASSERT_EQ(each.updates, each.expected)
                << "hour " << hour << " source " << index << " type " << each.source.BlnDataType();
            ASSERT_TRUE(!each.isKnown || each.value == each.value2) << "hour " << hour << " source " << index;
            ASSERT_EQ(each.mute, each.mute2) << "hour " << hour << " source " << index;
            updates += each.updates;
        }
        if (hour == 1) {
            blocks = blocksInUse;
        }
        Change(hour);
    }
    EXPECT_GT(updates, 1'000'000);
    EXPECT_GT(limitUpdates, 100'000);
    EXPECT_LT(blocksInUse - blocks, 1000) << "what one event in ten thousand kept would show";
    watched.clear();
    Sort();
    timers.Advance(stepsAnHour * millisecondsAStep);
}

} // namespace
} // namespace quor
