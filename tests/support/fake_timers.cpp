#include "tests/support/fake_timers.h"

#include <algorithm>
#include <stdexcept>

namespace quor {

class FakeTimer final : public Timer {
public:
    explicit FakeTimer(FakeTimers& owner) : m_owner(owner) { owner.m_timers.push_back(this); }
    ~FakeTimer() override { std::erase(m_owner.m_timers, this); }
    FakeTimer(const FakeTimer&) = delete;
    FakeTimer& operator=(const FakeTimer&) = delete;

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
        if (enabled && !m_enabled) {
            m_due = m_owner.m_now + m_interval;
        }
        m_enabled = enabled;
    }

    bool Enabled() const override { return m_enabled; }

    std::int64_t Due() const { return m_due; }

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
    return std::make_unique<FakeTimer>(*this);
}

void FakeTimers::Advance(int milliseconds)
{
    const std::int64_t end = m_now + milliseconds;
    FireUntil(end);
    m_now = std::max(m_now, end);
}

void FakeTimers::RunDue()
{
    FireUntil(m_now);
}

void FakeTimers::FireUntil(std::int64_t end)
{
    for (;;) {
        FakeTimer* next = nullptr;
        for (FakeTimer* timer : m_timers) {
            if (timer->Enabled() && timer->Due() <= end && (next == nullptr || timer->Due() < next->Due())) {
                next = timer;
            }
        }
        if (next == nullptr) {
            return;
        }
        m_now = std::max(m_now, next->Due());
        next->Fire();
    }
}

} // namespace quor
