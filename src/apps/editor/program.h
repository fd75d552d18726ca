#pragma once
// The whole program on the desktop: the ports, the application upon them, and its window.

#include "apps/editor/later_boxes.h"
#include "apps/login/sodium_hasher.h"
#include "base/event.h"
#include "binding/live.h"
#include "editor/application.h"
#include "login/user_login.h"
#include "posix/disk_files.h"
#include "posix/system_clock.h"
#include "qt/forms/qt_forms.h"
#include "qt/ports/qt_boxes.h"
#include "qt/ports/qt_clipboard.h"
#include "qt/ports/qt_common_dialog.h"
#include "qt/ports/qt_help.h"
#include "qt/ports/qt_pictures.h"
#include "qt/ports/qt_screen.h"
#include "qt/ports/qt_settings.h"
#include "qt/ports/qt_system_info.h"
#include "qt/ports/qt_timers.h"
#include "qt/theme/theme.h"
#include "servers/simulator/simulated_server.h"
#include "servers/simulator/sites_file.h"
#include "support/error_report.h"
#include "support/frm_view_pbar.h"

#include <memory>
#include <string>

namespace quor {

class MainWindow;

class Program {
public:
    // The tail of the command line. The toolkit's application exists already.
    explicit Program(std::string tail);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Event<> Ended; // nothing is left to do in the event loop

    // Shows the splash; the rest runs in the event loop.
    void Start() { m_application.Start(); }

    // Without a question: nothing may keep the system from going down.
    void EndSession();

    // Null before they are shown.
    frmMain* MainForm() const noexcept { return m_application.MainForm(); }
    MainWindow* Window() const noexcept { return m_window.get(); }
    bool HasEnded() const noexcept { return m_application.HasEnded(); }

private:
    EditorPorts Ports();
    void ShowWindow(frmMain& main);

    Theme m_theme;
    DiskFiles m_files;
    SystemClock m_clock;
    QtBoxes m_boxes;
    LaterBoxes m_laterBoxes{m_boxes};
    QtCommonDialog m_dialog;
    QtForms m_forms;
    QtTimers m_timers;
    QtScreen m_screen;
    QtPictures m_pictures;
    QtSettings m_settings{QtSettings::DefaultPath()};
    QtClipboard m_clipboard;
    SodiumHasher m_hasher;
    UserLogin m_login;
    QtHelp m_help;
    QtSystemInfo m_systemInfo;
    ErrorReporter m_reporter;
    frmViewPBar m_progress{m_forms};
    SitesFile m_sites;
    SimulatedServer m_server;
    Live m_live;
    Application m_application;
    std::unique_ptr<MainWindow> m_window; // shows the application's main form
    Subscription m_shown;
    Subscription m_ended;
};

} // namespace quor
