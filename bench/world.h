#pragma once
// A view without a window, on files in memory or on the disk.

#include "base/guard.h"
#include "binding/live.h"
#include "document/view_document.h"
#include "editor/editor_ports.h"
#include "support/frm_view_pbar.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_clipboard.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_login.h"
#include "tests/support/fake_pictures.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_settings.h"
#include "tests/support/fake_system_info.h"
#include "tests/support/fake_timers.h"
#include "widgets/canvas.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quor::bench {

// A measurement in which something fails is worth nothing: ends the program.
class NoReporter final : public Reporter {
public:
    void ShowError(const ErrorReport& report) noexcept override;
    void LogError(const ErrorReport& report) noexcept override { ShowError(report); }
};
void MustHold(bool condition, const std::string& words);

// The round LEDs of a view.
Collection& LedsOf(clsCustView& view);
std::string NameOf(std::int64_t number); // a1, a2 and so on
void AddLeds(clsCustView& view, std::int64_t count);
void AddMixed(clsCustView& view, std::int64_t count); // of each kind as many

class World {
public:
    explicit World(Files& files);

    clsCustView& View() { return *m_view; }
    // A fresh document; the old one and its widgets are gone.
    void Renew();
    EditorPorts PortsOfEditor();
    FakeTimers& Timers() noexcept { return m_timers; }

private:
    Files& m_files;
    FakeFiles m_pictureFiles;
    NoReporter m_reporter;
    FakeBoxes m_boxes;
    FakeTimers m_timers;
    FakeForms m_forms{m_timers};
    FakePictures m_pictures{m_pictureFiles};
    FakeDialog m_dialog;
    FakeScreen m_screen;
    FakeSettings m_settings;
    FakeLogin m_login;
    FakeHelp m_help;
    FakeSystemInfo m_systemInfo;
    frmViewPBar m_progress{m_forms};
    Live m_live;
    Canvas m_canvas;
    std::unique_ptr<clsCustView> m_view;
};

} // namespace quor::bench
