#include "apps/editor/session_end.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace quor {

namespace {

// The way from a signal's handler, where nearly nothing is allowed, to the event loop.
int signalPipe[2] = {-1, -1};

constexpr int endingSignals[] = {SIGTERM, SIGHUP, SIGINT};

void OnSignal(int /*number*/)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[0], &byte, 1);
}

} // namespace

SessionEnd::SessionEnd(std::function<void()> onEnd) : m_onEnd(std::move(onEnd))
{
    qApp->installEventFilter(this);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { End(); });
    // The session may go on yet: nothing is given up, and the next one begins without this program.
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); });
    ListenToSignals();
}

void SessionEnd::ListenToSignals()
{
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalPipe) != 0) {
        return; // signals then end the program as they do any other
    }
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[1], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        End();
    });
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    for (const int number : endingSignals) {
        sigaction(number, &action, nullptr);
    }
}

SessionEnd::~SessionEnd()
{
    for (const int number : endingSignals) {
        std::signal(number, SIG_DFL);
    }
    m_notifier.reset();
    for (int& end : signalPipe) {
        close(std::exchange(end, -1));
    }
}

bool SessionEnd::eventFilter(QObject* application, QEvent* event)
{
    if (application == qApp && event->type() == QEvent::Quit) {
        End();
    }
    return false;
}

void SessionEnd::End()
{
    if (const auto onEnd = std::exchange(m_onEnd, nullptr)) {
        onEnd();
    }
}

} // namespace quor
