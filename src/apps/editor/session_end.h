#pragma once
// Hears that the operating system ends the session or the program: by a signal, or through the session manager.
//
// The program comes to its end without a question, whichever way it is told. A second signal ends it at once.

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

    // The application's: a quit event is heard before it closes the windows, which would ask.
    bool eventFilter(QObject* application, QEvent* event) override;

private:
    void ListenToSignals();
    void End();

    std::function<void()> m_onEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quor
