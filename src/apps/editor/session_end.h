#pragma once
// Hears that the operating system ends the session or the program: by a signal, or through the session manager.

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace quor {

class SessionEnd final : public QObject {
public:
    // `onEnd` is called from the event loop, once. One instance in a process.
    explicit SessionEnd(std::function<void()> onEnd);
    ~SessionEnd() override;

private:
    void End();

    std::function<void()> m_onEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quor
