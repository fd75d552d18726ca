// The view editor: builds the ports and starts the program.

#include "apps/editor/session_end.h"
#include "binding/live.h"
#include "editor/application.h"
#include "editor/main_form.h"
#include "posix/disk_files.h"
#include "posix/system_clock.h"
#include "qt/forms/qt_forms.h"
#include "qt/ports/desktop_login.h"
#include "qt/ports/qt_boxes.h"
#include "qt/ports/qt_clipboard.h"
#include "qt/ports/qt_common_dialog.h"
#include "qt/ports/qt_help.h"
#include "qt/ports/qt_pictures.h"
#include "qt/ports/qt_screen.h"
#include "qt/ports/qt_settings.h"
#include "qt/ports/qt_system_info.h"
#include "qt/ports/qt_text.h"
#include "qt/ports/qt_timers.h"
#include "qt/theme/theme.h"
#include "qt/window/main_window.h"
#include "support/error_report.h"
#include "support/frm_view_pbar.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>

namespace {

using namespace quor;

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

// The user's folder for state, where the log goes if the program's own can't be written.
std::string StateFolder()
{
    QString base = qEnvironmentVariable("XDG_STATE_HOME");
    if (base.isEmpty()) {
        base = QDir::homePath() + QStringLiteral("/.local/state");
    }
    const QString folder = base + QStringLiteral("/quor");
    QDir().mkpath(folder);
    return FromQt(folder);
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

class Program {
public:
    explicit Program(std::string tail) : m_application(Ports(), std::move(tail))
    {
        m_shown = m_application.MainFormShown.Subscribe([this](frmMain& main) { ShowWindow(main); });
        m_ended = m_application.Ended.Subscribe([] { QCoreApplication::exit(0); });
    }

    void Start() { m_application.Start(); }

    // Without a question: nothing may keep the system from going down.
    void EndSession()
    {
        frmMain* main = m_application.MainForm();
        if (main == nullptr || !main->Close(CloseReason::System)) {
            QCoreApplication::exit(0);
        }
    }

private:
    EditorPorts Ports()
    {
        m_theme.Apply(*qApp);
        QApplication::setWindowIcon(m_theme.Icon("application"));
        return {m_files,    m_boxes, m_dialog,   m_forms,    m_timers, m_screen, m_pictures,
                m_settings, m_login, m_reporter, m_progress, m_live,   m_help,   m_systemInfo};
    }

    void ShowWindow(frmMain& main)
    {
        m_window = std::make_unique<MainWindow>(main, m_theme);
        m_forms.SetMainWindow(m_window.get());
        m_window->show();
    }

    Theme m_theme;
    DiskFiles m_files;
    SystemClock m_clock;
    QtBoxes m_boxes;
    QtCommonDialog m_dialog;
    QtForms m_forms{m_theme};
    QtTimers m_timers;
    QtScreen m_screen;
    QtPictures m_pictures;
    QtSettings m_settings{QtSettings::DefaultPath()};
    QtClipboard m_clipboard;
    DesktopLogin m_login;
    QtHelp m_help;
    QtSystemInfo m_systemInfo;
    ErrorReporter m_reporter{{m_files, m_forms, m_screen, m_clipboard, m_clock},
                             FromQt(QCoreApplication::applicationDirPath()),
                             StateFolder()};
    frmViewPBar m_progress{m_forms};
    Live m_live;
    Application m_application;
    std::unique_ptr<MainWindow> m_window; // shows the application's main form
    Subscription m_shown;
    Subscription m_ended;
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
    Program program(tail);
    const SessionEnd sessionEnd([&] { program.EndSession(); });
    program.Start();
    return QApplication::exec();
}
