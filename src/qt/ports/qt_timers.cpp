#include "qt/ports/qt_timers.h"

#include <QTimer>

namespace quor {

namespace {

class QtTimer final : public Timer {
public:
    QtTimer() : m_timer(new QTimer)
    {
        QObject::connect(m_timer.get(), &QTimer::timeout, m_timer.get(), [this] { Fired.Raise(); });
    }

    void SetInterval(int milliseconds) override { m_timer->setInterval(milliseconds); }
    bool Enabled() const override { return m_timer->isActive(); }

    void SetEnabled(bool enabled) override
    {
        if (!enabled) {
            m_timer->stop();
        } else if (!m_timer->isActive()) {
            m_timer->start();
        }
    }

private:
    // A handler may end the timer: the toolkit's object then lives until its signal is over.
    struct DeleteLater {
        void operator()(QTimer* timer) const
        {
            timer->disconnect();
            timer->stop();
            timer->deleteLater();
        }
    };

    std::unique_ptr<QTimer, DeleteLater> m_timer;
};

} // namespace

std::unique_ptr<Timer> QtTimers::Make()
{
    return std::make_unique<QtTimer>();
}

} // namespace quor
