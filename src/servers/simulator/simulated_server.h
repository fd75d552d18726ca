#pragma once
// A data server that needs nothing outside: what it holds comes from a plan, and moves along plausible curves that are
// the same for the same seed and the same commands.

#include "binding/server.h"
#include "platform/timer.h"
#include "servers/simulator/simulated_unit.h"

#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quor {

class SimulatedSite final : public TeskSite, private TeskUnits {
public:
    SimulatedSite(SimulatedServer& server, const SitePlan& plan, Randomness& randomness);

    bool SiteAlarms() const override;
    bool UsingBackup() const override { return m_usingBackup; }
    std::string NetName() const override { return m_netName; }
    TeskUnits& Units() override { return *this; }

    bool IsConnected() const noexcept { return m_downLeft <= 0; }
    void RaiseLost() const;
    void RaiseAlarmChange(const SimulatedUnit& unit);
    void Step(double seconds, Randomness& randomness);

private:
    TeskUnit& Item(std::uint8_t unitNum) override;
    bool AnyOf(const std::function<bool(TeskUnit&)>& isSo) override;
    void StepLink(double seconds, Randomness& randomness);
    void Connect(bool usingBackup);

    SimulatedServer& m_server;
    std::string m_netName;
    bool m_usingBackup;
    bool m_alarmsOfNoUnit;   // told of a site that has no unit to say it
    double m_downLeft = 0;   // seconds without a link
    double m_backupLeft = 0; // seconds until the primary path is back
    std::deque<SimulatedUnit> m_units;
};

class SimulatedServer final : public TeskServer, private TeskSites {
public:
    struct Pace {
        int milliseconds = 1000; // between two steps, as timers count
        double seconds = 1;      // that pass in the simulation
    };

    SimulatedServer(Timers& timers, const ServerPlan& plan, std::uint64_t seed);
    SimulatedServer(Timers& timers, const ServerPlan& plan, std::uint64_t seed, Pace pace);
    SimulatedServer(const SimulatedServer&) = delete;
    SimulatedServer& operator=(const SimulatedServer&) = delete;
    ~SimulatedServer() override;

    // From then on all moves by itself; before, it answers questions and requests alone.
    void Start() { m_steps->SetEnabled(true); }

    // The unit will report itself shortly, once for all who have asked by then.
    void Ask(SimulatedUnit& unit);

    // Days, as the event Values counts them.
    double TimeRecorded() const noexcept { return m_seconds / 86'400; }

    TeskSites& Sites() override { return *this; }
    bool AppAlarms() const override;

    // The plan's alarms that are no site's end when somebody clears any. True if there were some.
    bool EndToldAlarms() { return std::exchange(m_toldAlarms, false); }

private:
    TeskSite& Item(const std::string& netName) override;
    bool AnyOf(const std::function<bool(TeskSite&)>& isSo) override;
    void Step();
    void Answer();

    Randomness m_randomness;
    Pace m_pace;
    double m_seconds = 0;
    bool m_toldAlarms;
    std::deque<SimulatedSite> m_sites;
    std::vector<SimulatedUnit*> m_asked;
    std::unique_ptr<Timer> m_steps;
    std::unique_ptr<Timer> m_answers;
    Subscription m_onStep;
    Subscription m_onAnswer;
};

} // namespace quor
