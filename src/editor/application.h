#pragma once
// The program from the splash to the last form: it has ended when neither splash nor main form is left.

#include "base/event.h"
#include "editor/editor_ports.h"

#include <memory>
#include <string>

namespace quor {

class frmMain;
class frmSplash;

class Application {
public:
    // The tail of the command line behind the program's name.
    Application(const EditorPorts& ports, std::string tail);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    Event<frmMain&> MainFormShown;
    Event<> Ended;

    // Loads and shows the splash; the rest follows by itself.
    void Start();

    // Null before it is loaded.
    frmMain* MainForm() const noexcept { return m_main.get(); }
    bool HasEnded() const noexcept { return m_hasEnded; }

private:
    void OpenMainForm();
    void EndUnlessFormsAreLeft();

    EditorPorts m_ports;
    std::string m_tail;
    std::unique_ptr<frmSplash> m_splash;
    std::unique_ptr<frmMain> m_main;
    bool m_splashIsGone = false;
    bool m_hasEnded = false;
    Subscription m_splashUnloaded;
    Subscription m_mainUnloaded;
};

} // namespace quor
