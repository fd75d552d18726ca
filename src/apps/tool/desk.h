#pragma once
// What the commands of quor-view-tool work on: a view with its canvas and the world around it.

#include "apps/tool/console_ports.h"
#include "apps/tool/refusal.h"
#include "binding/live.h"
#include "document/view_document.h"
#include "widgets/canvas.h"

#include <string>
#include <string_view>

namespace quor {

// Safe to show on one line: breaks are blanks, other control characters escapes.
std::string OneLine(std::string text);

std::string_view WordFor(LoadVerdict verdict);

class Desk {
public:
    // The pictures are those of the background and of the elements; empty ones if there are none.
    explicit Desk(Files& files, Pictures* pictures = nullptr);

    clsCustView& View() noexcept { return m_view; }
    const Canvas& Shown() const noexcept { return m_canvas; }

    bool TryLoad(const std::string& path);

    // Refuses what the document refuses.
    void Load(const std::string& path);
    void Save(const std::string& path);

    // What a log would have got.
    const std::vector<ErrorReport>& Logged() const noexcept { return m_reports.logged; }

    // How the last load ended, with the reason if there is one.
    std::string Verdict() const;

    // The failures and messages so far.
    std::string Told() const;

private:
    Files& m_files;
    KeptBoxes m_boxes;
    KeptReports m_reports;
    NoProgress m_progress;
    NoTimers m_timers;
    NoPictures m_pictures;
    Live m_live;
    Canvas m_canvas;
    clsCustView m_view;
};

} // namespace quor
