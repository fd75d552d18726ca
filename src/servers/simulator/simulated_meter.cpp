#include "servers/simulator/simulated_meter.h"

#include <algorithm>
#include <numbers>

namespace quor {

namespace {

// The counts of a 12-bit converter.
constexpr double leastSigned = -2048;
constexpr double mostSigned = 2047;
constexpr double mostUnsigned = 4095;
constexpr std::uint8_t bothWays = 1;

constexpr double shortestPeriod = 120; // seconds
constexpr double longestPeriod = 900;
constexpr double escapeEvery = 2700;
constexpr double shortestEscape = 40;
constexpr double longestEscape = 180;
constexpr double inertia = 12; // seconds after which most of a way is gone
constexpr double noise = 0.03; // of the swing

} // namespace

SimulatedMeter::SimulatedMeter(const MeterPlan& plan, Randomness& randomness)
    : m_isUsed(!plan.label.empty() || plan.calibration != 0),
      m_hasLimits(std::ranges::any_of(plan.limits, [](float limit) { return limit != 0; })),
      m_least(plan.type == bothWays ? plan.calibration * leastSigned : 0),
      m_most(plan.calibration * (plan.type == bothWays ? mostSigned : mostUnsigned)), m_leastAllowed(plan.limits[0]),
      m_mostAllowed(plan.limits[3]), m_period(randomness.Between(shortestPeriod, longestPeriod)),
      m_phase(randomness.Fraction())
{
    if (m_least > m_most) {
        std::swap(m_least, m_most);
    }
    const double low = m_hasLimits ? plan.limits[1] : m_least + (m_most - m_least) / 4;
    const double high = m_hasLimits ? plan.limits[2] : m_most - (m_most - m_least) / 4;
    m_middle = (low + high) / 2;
    m_swing = (high - low) / 2;
    m_escape = m_hasLimits ? std::max(m_mostAllowed - m_middle, m_middle - m_leastAllowed) * 1.25 : m_swing;
    m_value = m_middle;
}

void SimulatedMeter::Move(double seconds, Randomness& randomness)
{
    if (!m_isUsed) {
        return;
    }
    m_phase += seconds / m_period;
    m_phase -= std::floor(m_phase);
    m_escapeLeft -= seconds;
    if (randomness.Happens(seconds, escapeEvery) && m_escapeLeft <= 0) {
        m_escapeLeft = randomness.Between(shortestEscape, longestEscape);
        m_escapeSign = randomness.Fraction() < 0.5 ? -1 : 1;
    }
    const double wave = std::sin(2 * std::numbers::pi * m_phase);
    const double target = m_middle + (m_escapeLeft > 0 ? m_escapeSign * m_escape : m_swing * 0.8 * wave);
    m_value += (target - m_value) * (1 - std::exp(-seconds / inertia));
    m_value += m_swing * noise * randomness.Between(-1, 1);
    if (m_most > m_least) {
        m_value = std::clamp(m_value, m_least, m_most);
    }
}

} // namespace quor
