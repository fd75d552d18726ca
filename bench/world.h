#pragma once
// A view without a window, on files in memory or on the disk.

#include "base/guard.h"
#include "tests/support/fake_desk.h"
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
    FakeTimers& Timers() noexcept { return m_desk.timers; }

private:
    Files& m_files;
    FakeDesk m_desk;
    NoReporter m_reporter;
    Canvas m_canvas;
    std::unique_ptr<clsCustView> m_view;
};

} // namespace quor::bench
