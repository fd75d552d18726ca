#include "servers/simulator/simulated_server.h"

#include "base/failure.h"

#include <algorithm>

namespace quor {

namespace {

constexpr int answerDelay = 50; // milliseconds

// What the event Connected says of a link, and the one reason for which the simulation loses it.
constexpr std::int32_t linkIsTried = 4;
constexpr std::int32_t linkIsUp = 5;
constexpr std::int32_t backupIsUp = 6;
constexpr std::int32_t linkLost = 1;

constexpr double lossEvery = 3600; // seconds
constexpr double shortestLoss = 15;
constexpr double longestLoss = 60;
constexpr double backupStays = 300;
constexpr double backupShare = 0.35; // of the links that are found again

} // namespace

SimulatedSite::SimulatedSite(SimulatedServer& server, const SitePlan& plan, Randomness& randomness)
    : m_server(server), m_netName(plan.netName), m_usingBackup(plan.usingBackup),
      m_alarmsOfNoUnit(plan.siteAlarms && plan.units.empty())
{
    for (const UnitPlan& unit : plan.units) {
        m_units.emplace_back(server, *this, unit, randomness);
    }
    if (plan.siteAlarms && !m_units.empty()) {
        m_units.front().RaiseAlarm();
    }
}

bool SimulatedSite::SiteAlarms() const
{
    return m_alarmsOfNoUnit || std::ranges::any_of(m_units, &SimulatedUnit::HasAlarm);
}

void SimulatedSite::RaiseAlarmChange(const SimulatedUnit& unit)
{
    if (IsConnected()) {
        m_server.AlarmFlagChange.Raise(m_netName, unit.UnitNum(), unit.HasAlarm(), SiteAlarms());
    }
}

TeskUnit& SimulatedSite::Item(std::uint8_t unitNum)
{
    const auto found = std::ranges::find(m_units, unitNum, &SimulatedUnit::UnitNum);
    if (found == m_units.end()) {
        throw Failure(failures::outOfRange);
    }
    return *found;
}

bool SimulatedSite::AnyOf(const std::function<bool(TeskUnit&)>& isSo)
{
    return std::ranges::any_of(m_units, isSo);
}

void SimulatedSite::Step(double seconds, Randomness& randomness)
{
    StepLink(seconds, randomness);
    for (SimulatedUnit& unit : m_units) {
        unit.Step(seconds, randomness);
    }
}

void SimulatedSite::StepLink(double seconds, Randomness& randomness)
{
    const bool isLost = randomness.Happens(seconds, lossEvery);
    const bool findsBackup = randomness.Fraction() < backupShare;
    if (!IsConnected()) {
        m_downLeft -= seconds;
        if (IsConnected()) {
            Connect(findsBackup);
        } else {
            m_server.Connected.Raise(m_netName, linkIsTried);
        }
    } else if (isLost) {
        m_downLeft = randomness.Between(shortestLoss, longestLoss);
        RaiseLost();
    } else if (m_backupLeft > 0 && (m_backupLeft -= seconds) <= 0) {
        Connect(false);
    }
}

void SimulatedSite::RaiseLost() const
{
    m_server.Disconnected.Raise(m_netName, linkLost);
}

void SimulatedSite::Connect(bool usingBackup)
{
    m_usingBackup = usingBackup;
    m_backupLeft = usingBackup ? backupStays : 0;
    m_server.Connected.Raise(m_netName, usingBackup ? backupIsUp : linkIsUp);
    for (const SimulatedUnit& unit : m_units) {
        unit.Report();
    }
}

SimulatedServer::SimulatedServer(Timers& timers, const ServerPlan& plan, std::uint64_t seed)
    : SimulatedServer(timers, plan, seed, Pace{})
{
}

SimulatedServer::SimulatedServer(Timers& timers, const ServerPlan& plan, std::uint64_t seed, Pace pace)
    : m_randomness(seed), m_pace(pace), m_toldAlarms(plan.appAlarms), m_steps(timers.Make()), m_answers(timers.Make())
{
    for (const SitePlan& site : plan.sites) {
        if (!site.catalogOnly) {
            m_sites.emplace_back(*this, site, m_randomness);
        }
    }
    m_steps->SetInterval(m_pace.milliseconds);
    m_onStep = m_steps->Fired.Subscribe([this] { Step(); });
    m_answers->SetInterval(answerDelay);
    m_onAnswer = m_answers->Fired.Subscribe([this] { Answer(); });
}

SimulatedServer::~SimulatedServer() = default;

bool SimulatedServer::AppAlarms() const
{
    return m_toldAlarms || std::ranges::any_of(m_sites, &SimulatedSite::SiteAlarms);
}

TeskSite& SimulatedServer::Item(const std::string& netName)
{
    const auto found = std::ranges::find(m_sites, netName, &SimulatedSite::NetName);
    if (found == m_sites.end()) {
        throw Failure(failures::invalidCall);
    }
    return *found;
}

bool SimulatedServer::AnyOf(const std::function<bool(TeskSite&)>& isSo)
{
    return std::ranges::any_of(m_sites, isSo);
}

void SimulatedServer::Ask(SimulatedUnit& unit)
{
    if (std::ranges::find(m_asked, &unit) == m_asked.end()) {
        m_asked.push_back(&unit);
    }
    m_answers->SetEnabled(true);
}

void SimulatedServer::Answer()
{
    m_answers->SetEnabled(false);
    for (SimulatedUnit* unit : std::exchange(m_asked, {})) {
        unit->Report();
    }
}

void SimulatedServer::Step()
{
    m_seconds += m_pace.seconds;
    for (SimulatedSite& site : m_sites) {
        site.Step(m_pace.seconds, m_randomness);
    }
}

} // namespace quor
