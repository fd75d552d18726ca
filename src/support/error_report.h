#pragma once
// Where every failure ends that a procedure catches: a line in the error log and the error dialog.

#include "base/guard.h"
#include "platform/trace.h"

#include <string>

namespace quor {

class Clipboard;
class Clock;
class Files;
class Forms;
class Screen;

class ErrorReporter final : public Reporter {
public:
    struct Ports {
        Files& files;
        Forms& forms;
        Screen& screen;
        Clipboard& clipboard;
        Clock& clock;
        const Trace& trace = noTrace;
    };

    // The log is "error.log" in the program's folder; in the user's one where the other can't be written.
    ErrorReporter(const Ports& ports, std::string programFolder, std::string userFolder);

    // Logs the report and shows it. Returns when the user is done; its own failures are forgotten.
    void ShowError(const ErrorReport& report) noexcept override;

    // Appends a line to the log, which grows without limit. Its own failures are forgotten.
    void LogError(const ErrorReport& report) noexcept override;

private:
    void Append(const std::string& folder, const std::string& line);

    Ports m_ports;
    std::string m_programFolder;
    std::string m_userFolder;
};

// Major, minor and revision number: "1.0.0".
std::string GetVersionText();

} // namespace quor
