#include "apps/tool/view_tool.h"

#include "apps/tool/console_ports.h"
#include "apps/view_json/view_json.h"
#include "base/guard.h"
#include "binding/live.h"
#include "document/format/container.h"
#include "document/format/upgrade.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "support/frm_view_pbar.h"
#include "widgets/canvas.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quor {

namespace {

constexpr std::string_view usage = "usage: quor-view-tool check FILE... | dump FILE | build FILE.json OUT.qvw | "
                                   "upgrade FILE OUT.qvw | resave FILE OUT.qvw";

// Why a command could not run.
struct Refusal {
    std::string reason;
};

std::string OneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
    return text;
}

std::string_view WordFor(LoadVerdict verdict)
{
    switch (verdict) {
    case LoadVerdict::Ok:
        return "ok";
    case LoadVerdict::WrongFile:
        return "wrong-file";
    case LoadVerdict::Newer:
        return "newer";
    case LoadVerdict::OldVersion:
        return "old-version";
    case LoadVerdict::Corrupt:
        return "corrupt";
    case LoadVerdict::Missing:
    case LoadVerdict::Failure:
        break;
    }
    return "load-failure";
}

// A view with its canvas and the world around it.
class Desk {
public:
    explicit Desk(Files& files)
        : m_live{true}, m_view({.files = files,
                                .boxes = m_boxes,
                                .reporter = m_reports,
                                .forms = m_forms,
                                .timers = m_timers,
                                .pictures = m_pictures,
                                .progress = m_progress,
                                .live = m_live},
                               WithArrays(m_canvas))
    {
    }

    clsCustView& View() noexcept { return m_view; }

    // How the last load ended, with the reason if there is one.
    std::string Verdict() const
    {
        const std::string told = Told();
        return std::string(WordFor(m_view.Verdict())) + (told.empty() ? "" : ": " + told);
    }

    // The failures and messages so far.
    std::string Told() const
    {
        std::string told;
        for (const ErrorReport& report : m_reports.reports) {
            told += (told.empty() ? "" : " ") + report.description;
        }
        for (const std::string& text : m_boxes.texts) {
            told += (told.empty() ? "" : " ") + text;
        }
        return OneLine(told);
    }

private:
    static Canvas& WithArrays(Canvas& canvas)
    {
        AddWidgetArrays(canvas);
        return canvas;
    }

    KeptBoxes m_boxes;
    KeptReports m_reports;
    NoForms m_forms;
    NoTimers m_timers;
    NoPictures m_pictures;
    frmViewPBar m_progress{m_forms};
    Live m_live;
    Canvas m_canvas;
    clsCustView m_view;
};

void Load(Desk& desk, const std::string& path)
{
    if (!desk.View().LoadFile(path)) {
        throw Refusal{desk.Verdict()};
    }
}

void Save(Desk& desk, const std::string& path)
{
    if (!desk.View().SaveFile(path)) {
        throw Refusal{"cannot save " + path + ": " + desk.Told()};
    }
}

// The whole file by way of a scratch file, so that the target is replaced in one step.
void WriteWhole(Files& files, const std::string& path, std::span<const std::uint8_t> bytes)
{
    const std::string scratch = files.TempFolder() + '/' + files.TempName();
    const std::unique_ptr<OpenFile> file = files.Open(scratch, OpenMode::Scratch);
    try {
        file->Write(0, bytes);
        file->Close();
        files.CopyFile(scratch, path);
    } catch (...) {
        IgnoreFailure([&] { files.DeleteFile(scratch); });
        throw;
    }
    files.DeleteFile(scratch);
}

} // namespace

int ViewTool::Run(std::span<const std::string> arguments)
{
    const std::string subject = arguments.size() < 2 ? "" : arguments[1] + ": ";
    try {
        return RunCommand(arguments);
    } catch (const Refusal& refusal) {
        m_errors << OneLine(subject + refusal.reason) << '\n';
    } catch (...) {
        m_errors << OneLine(subject + CurrentFailure().Description()) << '\n';
    }
    return 2;
}

int ViewTool::RunCommand(std::span<const std::string> arguments)
{
    const std::string command = arguments.empty() ? "" : arguments[0];
    if (command == "check" && arguments.size() > 1) {
        return Check(arguments.subspan(1));
    }
    const std::pair<std::string_view, void (ViewTool::*)(const std::string&, const std::string&)> rewriting[] = {
        {"build", &ViewTool::Build}, {"upgrade", &ViewTool::Upgrade}, {"resave", &ViewTool::Resave}};
    if (command == "dump" && arguments.size() == 2) {
        Dump(arguments[1]);
        return 0;
    }
    for (const auto& [name, run] : rewriting) {
        if (command == name && arguments.size() == 3) {
            (this->*run)(arguments[1], arguments[2]);
            return 0;
        }
    }
    m_errors << usage << '\n';
    return 2;
}

int ViewTool::Check(std::span<const std::string> paths)
{
    bool allAreSound = true;
    for (const std::string& path : paths) {
        Desk desk(m_files);
        allAreSound = desk.View().LoadFile(path) && allAreSound;
        m_out << path << ": " << desk.Verdict() << '\n';
    }
    return allAreSound ? 0 : 1;
}

void ViewTool::Dump(const std::string& path)
{
    Desk desk(m_files);
    Load(desk, path);
    m_out << JsonText(ViewToJson(desk.View()));
}

void ViewTool::Build(const std::string& from, const std::string& to)
{
    const std::vector<std::uint8_t> text = ReadWhole(*m_files.Open(from, OpenMode::Read));
    Desk desk(m_files);
    ViewFromJson(ParseJson({reinterpret_cast<const char*>(text.data()), text.size()}), desk.View());
    Save(desk, to);
}

void ViewTool::Upgrade(const std::string& from, const std::string& to)
{
    const std::unique_ptr<OpenFile> file = m_files.Open(from, OpenMode::Read);
    const ViewHeader header = ContainerReader(*file).Header();
    if (!header.isViewFile || header.IsNewer()) {
        throw Refusal{std::string(WordFor(header.isViewFile ? LoadVerdict::Newer : LoadVerdict::WrongFile))};
    }
    if (header.version != 1 && header.version != 2) {
        throw Refusal{"version " + std::to_string(header.version) + " is none to be upgraded"};
    }
    std::vector<std::uint8_t> bytes = ReadWhole(*file);
    if (header.version == 1) {
        bytes = UpgradeToVersion2(bytes);
    }
    WriteWhole(m_files, to, UpgradeToVersion3(bytes));
}

void ViewTool::Resave(const std::string& from, const std::string& to)
{
    Desk desk(m_files);
    Load(desk, from);
    Save(desk, to);
}

} // namespace quor
