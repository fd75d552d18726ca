#include "servers/simulator/simulated_unit.h"

#include "servers/simulator/simulated_server.h"

#include <algorithm>
#include <utility>

namespace quor {

namespace {

// Seconds: how often something begins on average, and how long it takes.
struct Habit {
    double every;
    double shortest;
    double longest;
};

constexpr Habit trouble{1800, 20, 120};
constexpr Habit mute{7200, 60, 240};
constexpr Habit localControl{5400, 60, 300};

constexpr double forever = 1e9; // what a file says to be so stays until somebody changes it
constexpr double macroEvery = 5400;
constexpr double macroRun = 45;
constexpr double alarmStays = 600;
constexpr double capturesStay = 120;
constexpr double flagsEvery = 30;

constexpr std::uint16_t BitOfIndex(std::size_t index)
{
    return static_cast<std::uint16_t>(1U << index);
}

void PutBit(std::uint16_t& mask, std::size_t index, bool isSet)
{
    mask = static_cast<std::uint16_t>(isSet ? mask | BitOfIndex(index) : mask & ~BitOfIndex(index));
}

template <std::size_t Count> std::int16_t MaskOf(const std::array<double, Count>& left)
{
    std::uint16_t mask = 0;
    for (std::size_t index = 0; index < Count; ++index) {
        PutBit(mask, index, left[index] > 0);
    }
    return static_cast<std::int16_t>(mask);
}

// Lets the span run on; begins one now and then.
void StepSpan(double& left, const Habit& habit, double seconds, Randomness& randomness)
{
    left = std::max(0.0, left - seconds);
    if (left == 0 && randomness.Happens(seconds, habit.every)) {
        left = randomness.Between(habit.shortest, habit.longest);
    }
}

bool IsNamed(const StatusPlan& status)
{
    return !status.on.empty() || !status.off.empty();
}

} // namespace

SimulatedUnit::SimulatedUnit(SimulatedServer& server, SimulatedSite& site, UnitPlan plan, Randomness& randomness)
    : m_server(server), m_site(site), m_plan(std::move(plan)), m_capturesLeft(m_plan.eventsPending ? forever : 0),
      m_localLeft(m_plan.localMode ? forever : 0)
{
    for (const MeterPlan& meter : m_plan.meters) {
        m_meters.emplace_back(meter, randomness);
    }
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        PutBit(m_normal, index, IsNamed(m_plan.statuses[index]) && randomness.Fraction() < 0.75);
        PutBit(m_outputs, index, !m_plan.commands[index].b.empty() && randomness.Fraction() < 0.3);
    }
    for (std::size_t index = 0; index < UnitPlan::macroCount; ++index) {
        m_macroLeft[index] = m_plan.macros[index].running ? forever : 0;
    }
    StepStatuses(0, randomness);
}

void SimulatedUnit::Step(double seconds, Randomness& randomness)
{
    const bool isHeard = m_site.IsConnected();
    StepMeters(seconds, randomness);
    StepStatuses(seconds, randomness);
    StepMutes(seconds, randomness);
    const bool flagsDiffer = StepFlags(seconds, randomness);
    StepMacros(seconds, randomness);
    if (isHeard) {
        RaiseValues();
        m_flagsDue -= seconds;
        if (flagsDiffer || m_flagsDue <= 0) {
            m_flagsDue = flagsEvery;
            RaiseFlags();
        }
    }
}

void SimulatedUnit::StepMeters(double seconds, Randomness& randomness)
{
    bool isNewOutside = false;
    for (std::size_t index = 0; index < m_meters.size(); ++index) {
        m_meters[index].Move(seconds, randomness);
        const bool isOutside = m_meters[index].IsOutside();
        isNewOutside = isNewOutside || (isOutside && !m_wasOutside[index] && m_meterMuteLeft[index] == 0);
        m_wasOutside[index] = isOutside;
    }
    if (isNewOutside) {
        m_capturesLeft = std::max(m_capturesLeft, capturesStay);
        RaiseAlarm();
    }
}

void SimulatedUnit::StepStatuses(double seconds, Randomness& randomness)
{
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        if (!m_plan.commands[index].a.empty()) { // what command A switches on, command B switches off
            PutBit(m_status, index, (m_outputs & BitOfIndex(index)) == 0);
        } else if (IsNamed(m_plan.statuses[index])) {
            StepSpan(m_troubleLeft[index], trouble, seconds, randomness);
            PutBit(m_status, index, ((m_normal & BitOfIndex(index)) != 0) == (m_troubleLeft[index] == 0));
        }
    }
}

void SimulatedUnit::StepMutes(double seconds, Randomness& randomness)
{
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        if (m_meters[index].IsUsed()) {
            StepSpan(m_meterMuteLeft[index], mute, seconds, randomness);
        }
        if (IsNamed(m_plan.statuses[index])) {
            StepSpan(m_statusMuteLeft[index], mute, seconds, randomness);
        }
    }
}

bool SimulatedUnit::StepFlags(double seconds, Randomness& randomness)
{
    const bool hadAlarm = HasAlarm();
    const bool wasPending = EventsPending();
    const bool wasLocal = LocalMode();
    m_alarmLeft = std::max(0.0, m_alarmLeft - seconds);
    m_capturesLeft = std::max(0.0, m_capturesLeft - seconds);
    StepSpan(m_localLeft, localControl, seconds, randomness);
    if (hadAlarm && !HasAlarm()) {
        m_site.RaiseAlarmChange(*this);
    }
    if (wasLocal != LocalMode() && m_site.IsConnected()) {
        m_server.RemoteLocalChange.Raise(m_site.NetName(), UnitNum(), LocalMode());
    }
    return hadAlarm != HasAlarm() || wasPending != EventsPending() || wasLocal != LocalMode();
}

void SimulatedUnit::StepMacros(double seconds, Randomness& randomness)
{
    const auto named = std::ranges::count_if(m_plan.macros, [](const MacroPlan& macro) { return !macro.name.empty(); });
    const bool startsOne = randomness.Happens(seconds, macroEvery);
    auto toPass = startsOne ? static_cast<std::ptrdiff_t>(randomness.Between(0, static_cast<double>(named))) : named;
    for (std::size_t index = 0; index < UnitPlan::macroCount; ++index) {
        const auto number = static_cast<std::uint8_t>(index + 1);
        if (m_macroLeft[index] > 0 && (m_macroLeft[index] -= seconds) <= 0) {
            EndMacro(number);
        } else if (!m_plan.macros[index].name.empty() && toPass-- == 0) {
            RunMacro(number);
        }
    }
}

void SimulatedUnit::RaiseAlarm()
{
    const bool isNew = !HasAlarm();
    m_alarmLeft = alarmStays;
    if (isNew) {
        m_site.RaiseAlarmChange(*this);
    }
}

void SimulatedUnit::ClearAlarms()
{
    if (!m_site.IsConnected()) {
        return;
    }
    const bool hadToldOnes = m_server.EndToldAlarms();
    if (std::exchange(m_alarmLeft, 0) > 0 || hadToldOnes) {
        m_site.RaiseAlarmChange(*this);
    }
}

void SimulatedUnit::RequestConfig()
{
    m_server.Ask(*this);
}

TeskCommand& SimulatedUnit::Item(std::uint8_t index)
{
    if (index >= UnitPlan::channels) {
        throw Failure(failures::outOfRange);
    }
    m_command = index;
    return *this;
}

bool SimulatedUnit::Obeys() const
{
    return m_site.IsConnected() && !LocalMode();
}

void SimulatedUnit::Issue(bool isB)
{
    if (!Obeys()) {
        return;
    }
    PutBit(m_outputs, m_command, isB);
    if (!m_plan.commands[m_command].a.empty()) {
        PutBit(m_status, m_command, !isB);
    }
    RaiseValues();
}

double& SimulatedUnit::MacroLeft(std::uint8_t macro)
{
    if (macro < 1 || macro > UnitPlan::macroCount) {
        throw Failure(failures::outOfRange);
    }
    return m_macroLeft[macro - 1U];
}

void SimulatedUnit::RunMacro(std::uint8_t macro)
{
    double& left = MacroLeft(macro);
    if (Obeys()) {
        left = macroRun;
        m_server.MacroStatus.Raise(m_site.NetName(), UnitNum(), macro, true);
    }
}

void SimulatedUnit::StopMacro(std::uint8_t macro)
{
    if (MacroLeft(macro) > 0 && Obeys()) {
        EndMacro(macro);
    }
}

void SimulatedUnit::StopAllMacros()
{
    for (std::size_t macro = 1; macro <= UnitPlan::macroCount; ++macro) {
        StopMacro(static_cast<std::uint8_t>(macro));
    }
}

void SimulatedUnit::EndMacro(std::uint8_t macro)
{
    m_macroLeft[macro - 1U] = 0;
    if (m_site.IsConnected()) {
        m_server.MacroStatus.Raise(m_site.NetName(), UnitNum(), macro, false);
    }
}

void SimulatedUnit::Report() const
{
    if (!m_site.IsConnected()) {
        return m_site.RaiseLost();
    }
    RaiseConfig();
    RaiseValues();
    RaiseFlags();
}

void SimulatedUnit::RaiseValues() const
{
    std::vector<float> values(m_meters.size());
    std::ranges::transform(m_meters, values.begin(), &SimulatedMeter::Value);
    m_server.Values.Raise({m_site.NetName(), UnitNum(), m_server.TimeRecorded(), static_cast<std::int16_t>(m_status),
                           static_cast<std::int16_t>(m_outputs), MaskOf(m_statusMuteLeft), MaskOf(m_meterMuteLeft),
                           ServerArray<float>(std::move(values))});
}

void SimulatedUnit::RaiseFlags() const
{
    m_server.FlagReport.Raise({m_site.NetName(), UnitNum(), HasAlarm(), m_site.SiteAlarms(), m_server.AppAlarms(),
                               EventsPending(), false, LocalMode()});
}

void SimulatedUnit::RaiseConfig() const
{
    std::vector<float> limits;
    std::vector<std::string> commands;
    std::vector<std::string> meters;
    std::vector<std::string> statuses;
    std::vector<float> calibrations;
    std::vector<std::uint8_t> types;
    std::vector<std::string> macros;
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        const MeterPlan& meter = m_plan.meters[index];
        limits.insert(limits.end(), meter.limits.begin(), meter.limits.end());
        meters.push_back(meter.label);
        calibrations.push_back(meter.calibration);
        types.push_back(meter.type);
        commands.insert(commands.end(), {m_plan.commands[index].a, m_plan.commands[index].b});
        statuses.insert(statuses.end(), {m_plan.statuses[index].off, m_plan.statuses[index].on});
    }
    for (std::size_t index = 0; index < UnitPlan::macroCount; ++index) {
        macros.insert(macros.end(), {m_plan.macros[index].name, m_macroLeft[index] > 0 ? "True" : "False"});
    }
    m_server.ConfigData.Raise(
        {m_site.NetName(), UnitNum(), ServerTable<float>(std::move(limits), 4),
         ServerTable<std::string>(std::move(commands), 2), ServerArray<std::string>(std::move(meters)),
         ServerTable<std::string>(std::move(statuses), 2), ServerArray<float>(std::move(calibrations)),
         ServerArray<std::uint8_t>(std::move(types)), ServerTable<std::string>(std::move(macros), 2)});
}

ServerTable<std::string> SimulatedUnit::ChannelTable() const
{
    constexpr std::size_t fields = 13;
    std::vector<std::string> table(UnitPlan::channels * fields);
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        const auto field = [&](std::int32_t column) -> std::string& {
            return table[index * fields + static_cast<std::size_t>(column)];
        };
        field(channel_fields::meterLabel) = m_plan.meters[index].label;
        field(channel_fields::statusText1) = m_plan.statuses[index].texts[0];
        field(channel_fields::statusText2) = m_plan.statuses[index].texts[1];
        field(channel_fields::commandA) = m_plan.commands[index].a;
        field(channel_fields::commandB) = m_plan.commands[index].b;
    }
    return {std::move(table), fields, 1, 0};
}

ServerArray<std::string> SimulatedUnit::MacroNameList() const
{
    std::vector<std::string> names(UnitPlan::macroCount);
    std::ranges::transform(m_plan.macros, names.begin(), &MacroPlan::name);
    return ServerArray<std::string>(std::move(names));
}

} // namespace quor
