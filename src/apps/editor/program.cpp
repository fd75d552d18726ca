#include "apps/editor/program.h"

#include "editor/main_form.h"
#include "posix/user_folders.h"
#include "qt/ports/qt_text.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

namespace quor {

namespace {

// Where the log goes if the program's own folder can't be written.
std::string LogFolder()
{
    std::string folder = StateFolder();
    QDir().mkpath(ToQt(folder));
    return folder;
}

// The user's own sites, else those that lie beside the program.
std::vector<std::string> SitesPaths()
{
    const QString shared = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/quor-view-editor");
    return {ConfigFolder() + "/sites.json", FromQt(QDir::cleanPath(shared)) + "/sites.json"};
}

constexpr std::uint64_t seed = 1; // the simulation is the same at each start

} // namespace

Program::Program(std::string tail)
    : m_login({m_files, m_forms, m_timers, m_boxes, m_hasher}, {ConfigFolder(), StateFolder()}),
      m_reporter({m_files, m_forms, m_screen, m_clipboard, m_clock}, FromQt(QCoreApplication::applicationDirPath()),
                 LogFolder()),
      m_sites(m_files, m_laterBoxes, SitesPaths()), m_server(m_timers, m_sites.Plan(), seed),
      m_application(Ports(), std::move(tail))
{
    m_shown = m_application.MainFormShown.Subscribe([this](frmMain& main) { ShowWindow(main); });
    m_ended = m_application.Ended.Subscribe([this] { Ended.Raise(); });
}

Program::~Program() = default;

void Program::EndSession()
{
    frmMain* main = m_application.MainForm();
    if (main == nullptr || !main->Close(CloseReason::System)) {
        Ended.Raise();
    }
}

EditorPorts Program::Ports()
{
    m_theme.Apply(*qApp);
    QApplication::setWindowIcon(IconOf("application"));
    m_live.Server = &m_server;
    m_live.CatalogHost = &m_sites;
    m_live.Login = &m_login;
    m_live.Boxes = &m_boxes;
    m_live.ViewFiles = &m_files;
    m_live.PictureFiles = &m_pictures;
    return {m_files,    m_boxes, m_dialog,   m_forms,    m_timers, m_screen, m_pictures,
            m_settings, m_login, m_reporter, m_progress, m_live,   m_help,   m_systemInfo};
}

void Program::ShowWindow(frmMain& main)
{
    m_window = std::make_unique<MainWindow>(main);
    m_forms.SetMainWindow(m_window.get());
    m_window->show();
    QTimer::singleShot(0, m_window.get(), [this] { // when the splash has gone
        m_laterBoxes.Release();
        if (const std::string trouble = m_settings.Trouble(); !trouble.empty()) {
            m_boxes.Show(trouble, std::string(appTitle), BoxButtons::Ok);
        }
    });
}

} // namespace quor
