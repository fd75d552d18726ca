// The view editor: builds the ports and starts the program.

#include "apps/editor/program.h"
#include "apps/editor/session_end.h"

#include <QApplication>

#include <cstdio>

namespace {

// The arguments, with single blanks between them.
std::string TailOf(int argc, char** argv)
{
    std::string tail;
    for (int i = 1; i < argc; ++i) {
        tail += i > 1 ? " " : "";
        tail += argv[i];
    }
    return tail;
}

// Keeps a failure that no procedure caught from taking the program down.
class Toolkit final : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "quor-view-editor: %s\n", failure.what());
            return false;
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    const std::string tail = TailOf(argc, argv);
    int toolkitArguments = 1; // all others are the tail's
    Toolkit toolkit(toolkitArguments, argv);
    QApplication::setApplicationName(QStringLiteral("quor-view-editor"));
    QGuiApplication::setDesktopFileName(QStringLiteral("quor-view-editor"));
    QApplication::setQuitOnLastWindowClosed(false);
    quor::Program program(tail);
    const quor::Subscription ended = program.Ended.Subscribe([] { QCoreApplication::exit(0); });
    const quor::SessionEnd sessionEnd([&] { program.EndSession(); });
    program.Start();
    return QApplication::exec();
}
