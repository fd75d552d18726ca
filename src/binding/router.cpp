#include "binding/router.h"

#include "base/guard.h"
#include "binding/server.h"

#include <algorithm>

namespace quor {

struct Router::Site {
    std::array<std::unique_ptr<Ring>, 256> units; // by number, made for the first follower
    Ring whole;
    int visits = 0; // events under way here

    Ring& UnitRing(std::uint8_t unit)
    {
        if (units[unit] == nullptr) {
            units[unit] = std::make_unique<Ring>();
        }
        return *units[unit];
    }

    bool IsDeserted() const
    {
        return visits == 0 && whole.IsEmpty() && std::all_of(units.begin(), units.end(), [](const auto& ring) {
                   return ring == nullptr || ring->IsEmpty();
               });
    }
};

namespace {
constexpr std::size_t sitesBeforeCleaning = 64;
}

Router::Router() = default;

Router::~Router() = default;

void Router::FollowUnit(TeskServer& server, ServerListener& listener, const std::string& site, std::uint8_t unit)
{
    Listen(server);
    SiteOf(site).UnitRing(unit).Append(listener);
}

void Router::FollowSite(TeskServer& server, ServerListener& listener, const std::string& site)
{
    Listen(server);
    SiteOf(site).whole.Append(listener);
}

void Router::FollowAll(TeskServer& server, ServerListener& listener)
{
    Listen(server);
    m_all.Append(listener);
}

Router::Site& Router::SiteOf(const std::string& name)
{
    if (Site* known = FindSite(name)) {
        return *known;
    }
    if (m_sites.size() >= m_cleaningAt) {
        std::erase_if(m_sites, [](const auto& entry) { return entry.second->IsDeserted(); });
        m_cleaningAt = std::max(sitesBeforeCleaning, m_sites.size() * 2);
    }
    return *m_sites.emplace(name, std::make_unique<Site>()).first->second;
}

Router::Site* Router::FindSite(const std::string& name) const
{
    const auto found = m_sites.find(name);
    return found == m_sites.end() ? nullptr : found->second.get();
}

template <class Call> void Router::Bring(Ring& ring, Call call)
{
    RingWalk walk(ring);
    while (RingNode* node = walk.Next()) {
        IgnoreFailure([&] { call(static_cast<ServerListener&>(*node)); });
    }
}

template <class Visit> void Router::VisitSite(const std::string& name, Visit visit)
{
    if (Site* site = FindSite(name)) {
        ++site->visits;
        visit(*site);
        --site->visits;
    }
}

template <class Call> void Router::ToUnit(const std::string& site, std::uint8_t unit, Call call)
{
    VisitSite(site, [&](Site& followers) {
        if (followers.units[unit] != nullptr) {
            Bring(*followers.units[unit], call);
        }
    });
}

template <class Call> void Router::ToSite(const std::string& site, Call call)
{
    VisitSite(site, [&](Site& followers) {
        for (const std::unique_ptr<Ring>& ring : followers.units) {
            if (ring != nullptr) {
                Bring(*ring, call);
            }
        }
        Bring(followers.whole, call);
    });
}

// For events that concern a unit, its site and, by what they say of the whole system, those that follow all sites.
template <class Call> void Router::ToFlags(const std::string& site, std::uint8_t unit, Call call)
{
    VisitSite(site, [&](Site& followers) {
        if (followers.units[unit] != nullptr) {
            Bring(*followers.units[unit], call);
        }
        Bring(followers.whole, call);
    });
    Bring(m_all, call);
}

void Router::Listen(TeskServer& server)
{
    if (m_server == &server) {
        return;
    }
    m_subscriptions.clear();
    m_server = &server;
    const auto keep = [this](Subscription subscription) { m_subscriptions.push_back(std::move(subscription)); };
    keep(server.ConfigData.Subscribe([this](const ConfigDataEvent& event) {
        ToUnit(event.NetName, event.UnitNum, [&](ServerListener& to) { to.m_Srv_ConfigData(event); });
    }));
    keep(server.Values.Subscribe([this](const ValuesEvent& event) {
        ToUnit(event.NetName, event.UnitNum, [&](ServerListener& to) { to.m_Srv_Values(event); });
    }));
    keep(server.MacroStatus.Subscribe(
        [this](const std::string& netName, std::uint8_t unit, std::uint8_t macro, bool running) {
            ToUnit(netName, unit, [&](ServerListener& to) { to.m_Srv_MacroStatus(netName, unit, macro, running); });
        }));
    keep(server.RemoteLocalChange.Subscribe([this](const std::string& netName, std::uint8_t unit, bool localOnly) {
        ToSite(netName, [&](ServerListener& to) { to.m_Srv_RemoteLocalChange(netName, unit, localOnly); });
    }));
    keep(server.Connected.Subscribe([this](const std::string& netName, std::int32_t status) {
        ToSite(netName, [&](ServerListener& to) { to.m_Srv_Connected(netName, status); });
    }));
    keep(server.Disconnected.Subscribe([this](const std::string& netName, std::int32_t reason) {
        const auto call = [&](ServerListener& to) { to.m_Srv_Disconnected(netName, reason); };
        ToSite(netName, call);
        Bring(m_all, call);
    }));
    keep(server.AlarmFlagChange.Subscribe(
        [this](const std::string& netName, std::uint8_t unit, bool alarmsPending, bool siteAlarms) {
            ToFlags(netName, unit,
                    [&](ServerListener& to) { to.m_Srv_AlarmFlagChange(netName, unit, alarmsPending, siteAlarms); });
        }));
    keep(server.FlagReport.Subscribe([this](const FlagReportEvent& event) {
        ToFlags(event.NetName, event.UnitNum, [&](ServerListener& to) { to.m_Srv_FlagReport(event); });
    }));
}

} // namespace quor
