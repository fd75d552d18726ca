#include "tests/support/fake_timers.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace quor {

class FakeTimers::Each final : public Timer {
public:
    explicit Each(FakeTimers& owner) : m_owner(owner) { owner.m_timers.push_back(this); }
    ~Each() override { std::erase(m_owner.m_timers, this); }
    Each(const Each&) = delete;
    Each& operator=(const Each&) = delete;

    void SetInterval(int milliseconds) override
    {
        if (milliseconds <= 0) {
            throw std::invalid_argument("an interval of nothing");
        }
        m_interval = milliseconds;
        m_due = m_owner.m_now + m_interval;
    }

    void SetEnabled(bool enabled) override
    {
        m_due = enabled && !m_enabled ? m_owner.m_now + m_interval : m_due;
        m_enabled = enabled;
    }

    bool Enabled() const override { return m_enabled; }

    std::int64_t Due() const { return m_enabled ? m_due : std::numeric_limits<std::int64_t>::max(); }

    // Its handlers may end it.
    void Fire()
    {
        m_due += m_interval;
        Fired.Raise();
    }

private:
    FakeTimers& m_owner;
    int m_interval = 1;
    bool m_enabled = false;
    std::int64_t m_due = 0;
};

std::unique_ptr<Timer> FakeTimers::Make()
{
    return std::make_unique<Each>(*this);
}

void FakeTimers::Advance(int milliseconds)
{
    const std::int64_t end = m_now + milliseconds;
    for (;;) {
        const auto next = std::ranges::min_element(m_timers, {}, &Each::Due); // of equals the first
        if (next == m_timers.end() || (*next)->Due() > end) {
            break;
        }
        m_now = std::max(m_now, (*next)->Due());
        (*next)->Fire();
    }
    m_now = std::max(m_now, end);
}

} // namespace quor
