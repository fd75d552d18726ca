#include "support/error_report.h"

#include "base/text.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/forms.h"
#include "support/frm_error.h"

#include <algorithm>

namespace quor {

namespace {

// A column of the log. Line breaks become blanks: a report is one line.
std::string Column(std::string text, std::size_t width)
{
    std::replace_if(
        text.begin(), text.end(), [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    return FitField(text, width);
}

std::string LogLine(const std::string& now, const ErrorReport& report)
{
    const std::string gap = "   ";
    return Column(now, 22) + gap + Column("Ref# " + std::to_string(report.ref), 10) + gap + Column(report.message, 72) +
           gap + "Source: " + Column(report.source, 16) + gap + "Err# " + Column(std::to_string(report.number), 11) +
           gap + "Msg: " + Column(report.description, 72) + '\n';
}

} // namespace

ErrorReporter::ErrorReporter(const Ports& ports, std::string programFolder, std::string userFolder)
    : m_ports(ports), m_programFolder(std::move(programFolder)), m_userFolder(std::move(userFolder))
{
}

void ErrorReporter::ShowError(const ErrorReport& report) noexcept
{
    LogError(report);
    m_ports.trace.Reports(report);
    IgnoreFailure([&] {
        auto form = std::make_unique<frmError>(m_ports.screen, m_ports.clipboard, m_ports.clock);
        form->SetError(report);
        m_ports.forms.ShowModal(std::move(form));
    });
}

void ErrorReporter::LogError(const ErrorReport& report) noexcept
{
    IgnoreFailure([&] {
        const std::string line = LogLine(m_ports.clock.Now(), report);
        if (!IgnoreFailure([&] { Append(m_programFolder, line); })) {
            Append(m_userFolder, line);
        }
    });
}

void ErrorReporter::Append(const std::string& folder, const std::string& line)
{
    const std::unique_ptr<OpenFile> file = m_ports.files.Open(folder + "/error.log", OpenMode::Append);
    file->Write(0, {reinterpret_cast<const std::uint8_t*>(line.data()), line.size()});
    file->Close();
}

std::string GetVersionText()
{
    return QUOR_VERSION;
}

} // namespace quor
