#include "apps/editor/session_end.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace quor {

namespace {

// The way from a signal's handler, where nearly nothing is allowed, to the event loop.
int signalPipe[2] = {-1, -1};

void OnSignal(int /*number*/)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[0], &byte, 1);
}

} // namespace

SessionEnd::SessionEnd(std::function<void()> onEnd) : m_onEnd(std::move(onEnd))
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { End(); });
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalPipe) != 0) {
        return; // signals then end the program as they do any other
    }
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[1], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        End();
    });
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        std::signal(number, OnSignal);
    }
}

SessionEnd::~SessionEnd()
{
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        std::signal(number, SIG_DFL);
    }
    m_notifier.reset();
    for (int& end : signalPipe) {
        close(std::exchange(end, -1));
    }
}

void SessionEnd::End()
{
    if (const auto onEnd = std::exchange(m_onEnd, nullptr)) {
        onEnd();
    }
}

} // namespace quor
