#pragma once
// One meter of a simulated unit: swings about the middle of its limits, and now and then leaves them.

#include "servers/simulator/randomness.h"
#include "servers/simulator/server_plan.h"

namespace quor {

class SimulatedMeter {
public:
    SimulatedMeter(const MeterPlan& plan, Randomness& randomness);

    // A channel that is neither named nor calibrated stays at 0.
    bool IsUsed() const noexcept { return m_isUsed; }
    float Value() const noexcept { return static_cast<float>(m_value); }

    // Below the second lower or above the second upper limit.
    bool IsOutside() const noexcept { return m_hasLimits && (m_value < m_leastAllowed || m_value > m_mostAllowed); }

    void Move(double seconds, Randomness& randomness);

private:
    bool m_isUsed;
    bool m_hasLimits;
    double m_least; // of the converter's scale
    double m_most;
    double m_leastAllowed;
    double m_mostAllowed;
    double m_middle;
    double m_swing;  // about the middle
    double m_escape; // to outside of all limits
    double m_period; // seconds
    double m_phase;  // of the swing, in periods
    double m_escapeLeft = 0;
    double m_escapeSign = 1;
    double m_value;
};

} // namespace quor
