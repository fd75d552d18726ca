#pragma once
// The program on its stage: every port in memory, and what it says as lines.

#include "binding/live.h"
#include "support/error_report.h"
#include "support/frm_view_pbar.h"
#include "tests/journey_driver/journey.h"
#include "tests/journey_driver/output.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_clipboard.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_login.h"
#include "tests/support/fake_pictures.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_server.h"
#include "tests/support/fake_settings.h"
#include "tests/support/fake_system_info.h"
#include "tests/support/fake_timers.h"

#include <functional>
#include <memory>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace quor {

class Application;
class Canvas;
class Element;
class Form;
class LoneView;
class RaisedLines;
class Tracer;
class clsCustView;
class frmMain;

class Stage {
public:
    // Paths of the journey's own files are relative to the folder.
    Stage(Output& output, std::string folder);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Output& out;
    FakeFiles files;
    FakeTimers timers;
    FakeForms forms{timers};
    FakeBoxes boxes;
    FakeDialog dialog;
    FakeSettings settings;
    FakeLogin login;
    FakePictures pictures{files};
    FakeClipboard clipboard;
    FakeScreen screen;
    FakeClock clock;
    FakeHelp help;
    FakeSystemInfo systemInfo;
    FakeServer server;
    std::set<std::int16_t> loginRights = login.rightsHeld; // of whom logs on next
    std::vector<std::string> reportButtons;                // that the user pushes in the next error report
    std::set<std::string> traced;                          // what is traced

    // A file of the journey's folder; fails with JourneyError.
    bool HasHostFile(const std::string& path) const;
    FakeFiles::Bytes HostBytes(const std::string& path) const;

    // Runs one step; what it leaves to be ended, ends behind it.
    void BeforeStep(std::span<const Word> words);
    void AfterStep();

    void Start(const std::string& tail);
    void OpenLive(const std::string& path);

    bool IsLive() const noexcept { return m_liveView != nullptr; }

    // Each fails with JourneyError where there is none.
    frmMain& Main() const;
    clsCustView& View() const;
    Canvas& CanvasInUse() const;
    Element& ElementOf(const std::string& name) const;
    Form& FormOf(const std::string& name) const;

    bool IsTraced(const std::string& what) const { return traced.contains(what); }

    // A line about an element, by its widget's tag or its source.
    void Tell(const std::string& element, std::string line);
    void Tell(const ServerListener& source, const std::string& words);

    // Runs what raises an event: the lines about elements come in the order of the elements.
    void Raise(const std::function<void()>& raise);

    std::vector<std::string> LogLines() const;
    std::vector<std::string> FilePaths() const; // without the log

private:
    template <class IsIt> const Element* Find(std::size_t& position, IsIt isIt) const;
    void ListenToPorts();
    void OnForm(Form& form);
    void CloseReports();

    std::string m_folder;
    Live m_live;
    std::unique_ptr<Tracer> m_tracer;
    frmViewPBar m_progress;
    ErrorReporter m_reporter;
    RaisedLines* m_raised = nullptr; // of the event under way
    std::unique_ptr<Application> m_application;
    std::unique_ptr<LoneView> m_liveView;
    bool m_endIsTold = true;
    std::vector<Subscription> m_portSubscriptions;
    std::vector<Subscription> m_programSubscriptions;
};

} // namespace quor
