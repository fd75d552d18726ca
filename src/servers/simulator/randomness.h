#pragma once
// Numbers that look random and are the same for the same seed, on every machine.

#include <cmath>
#include <cstdint>

namespace quor {

class Randomness {
public:
    explicit Randomness(std::uint64_t seed) noexcept : m_state(seed) {}

    std::uint64_t Next() noexcept
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    // From 0 to just below 1.
    double Fraction() noexcept { return static_cast<double>(Next() >> 11U) * 0x1p-53; }
    double Between(double least, double most) noexcept { return least + (most - least) * Fraction(); }

    // Whether something that happens every so many seconds on average happens within these.
    bool Happens(double seconds, double every) noexcept { return Fraction() < 1 - std::exp(-seconds / every); }

private:
    std::uint64_t m_state;
};

} // namespace quor
