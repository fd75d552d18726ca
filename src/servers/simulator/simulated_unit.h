#pragma once
// A unit of the simulated server: its channels move by themselves, and it obeys commands and macros.

#include "binding/server.h"
#include "servers/simulator/simulated_meter.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quor {

class SimulatedServer;
class SimulatedSite;

class SimulatedUnit final : public TeskUnit,
                            private TeskCommands,
                            private TeskCommand,
                            private TeskUnitConfig,
                            private TeskMacroConfig {
public:
    SimulatedUnit(SimulatedServer& server, SimulatedSite& site, UnitPlan plan, Randomness& randomness);

    bool HasAlarm() const noexcept { return m_alarmLeft > 0; }
    void RaiseAlarm();

    // Moves on by so many seconds, and raises what comes of it.
    void Step(double seconds, Randomness& randomness);

    // Raises all that is to be known of the unit: where the link is lost, just that.
    void Report() const;

    bool EventsPending() const override { return m_capturesLeft > 0; }
    bool LocalMode() const override { return m_localLeft > 0; }
    const TeskUnitConfig& UnitConfig() const override { return *this; }
    std::string UnitName() const override { return m_plan.name; }
    std::uint8_t UnitNum() const override { return m_plan.number; }
    TeskCommands& Commands() override { return *this; }
    void ClearAlarms() override;
    void RequestConfig() override;
    void StopMacro(std::uint8_t macro) override;
    void StopAllMacros() override;
    void RunMacro(std::uint8_t macro) override;

private:
    // A channel's bit for a while: seconds that are left, or 0.
    using Spans = std::array<double, UnitPlan::channels>;

    TeskCommand& Item(std::uint8_t index) override;
    void IssueA() override { Issue(false); }
    void IssueB() override { Issue(true); }
    const TeskMacroConfig& MacroConfig() const override { return *this; }
    ServerTable<std::string> ChannelTable() const override;
    ServerArray<std::string> MacroNameList() const override;

    void Issue(bool isB);
    bool Obeys() const;
    double& MacroLeft(std::uint8_t macro); // fails with 9
    void EndMacro(std::uint8_t macro);
    void StepMeters(double seconds, Randomness& randomness);
    void StepStatuses(double seconds, Randomness& randomness);
    void StepMutes(double seconds, Randomness& randomness);
    void StepMacros(double seconds, Randomness& randomness);
    bool StepFlags(double seconds, Randomness& randomness); // true if one is another
    void RaiseValues() const;
    void RaiseConfig() const;
    void RaiseFlags() const;

    SimulatedServer& m_server;
    SimulatedSite& m_site;
    UnitPlan m_plan;
    std::vector<SimulatedMeter> m_meters;
    std::array<bool, UnitPlan::channels> m_wasOutside{};
    std::uint16_t m_status = 0;
    std::uint16_t m_normal = 0; // of statuses that no command drives
    std::uint16_t m_outputs = 0;
    Spans m_troubleLeft{}; // a status is other than normal
    Spans m_meterMuteLeft{};
    Spans m_statusMuteLeft{};
    std::array<double, UnitPlan::macroCount> m_macroLeft{};
    double m_alarmLeft = 0; // seconds until somebody clears it
    double m_capturesLeft = 0;
    double m_localLeft = 0;
    double m_flagsDue = 0;      // seconds until the next report
    std::uint8_t m_command = 0; // chosen by Item
};

} // namespace quor
