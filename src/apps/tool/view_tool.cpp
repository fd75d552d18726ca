#include "apps/tool/view_tool.h"

#include "apps/tool/desk.h"
#include "apps/tool/render_job.h"
#include "apps/tool/signal_hold.h"
#include "apps/tool/view_renderer.h"
#include "apps/view_json/view_json.h"
#include "base/guard.h"
#include "base/text.h"
#include "format/container.h"
#include "format/upgrade.h"
#include "platform/whole_file.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quor {

namespace {

constexpr std::string_view usage = "usage: quor-view-tool check FILE... | dump FILE | build FILE.json OUT.qvw | "
                                   "upgrade FILE OUT.qvw | resave FILE OUT.qvw";
constexpr std::string_view renderUsage = " | render FILE OUT.png [--scale N] [--state on|off] [--size WIDTHxHEIGHT]";
constexpr std::string_view noRender = " (this build can't render: it is one without Qt)";

} // namespace

int ViewTool::Run(std::span<const std::string> arguments)
{
    const std::string subject = arguments.size() < 2 ? "" : Escaped(arguments[1]) + ": ";
    try {
        return RunCommand(arguments);
    } catch (const Refusal& refusal) {
        m_errors << subject << OneLine(refusal.reason) << '\n';
    } catch (...) {
        m_errors << subject << OneLine(CurrentFailure().Description()) << '\n';
    }
    return 2;
}

int ViewTool::RunCommand(std::span<const std::string> arguments)
{
    const std::string command = arguments.empty() ? "" : arguments[0];
    if (command == "check" && arguments.size() > 1) {
        return Check(arguments.subspan(1));
    }
    const std::pair<std::string_view, int (ViewTool::*)(const std::string&, const std::string&)> rewriting[] = {
        {"build", &ViewTool::Build}, {"upgrade", &ViewTool::Upgrade}, {"resave", &ViewTool::Resave}};
    if (command == "dump" && arguments.size() == 2) {
        Dump(arguments[1]);
        return 0;
    }
    for (const auto& [name, run] : rewriting) {
        if (command == name && arguments.size() == 3) {
            return (this->*run)(arguments[1], arguments[2]);
        }
    }
    if (command == "render" && m_renderer != nullptr && arguments.size() >= 3) {
        Render(arguments.subspan(1));
        return 0;
    }
    m_errors << usage << (m_renderer == nullptr ? noRender : renderUsage) << '\n';
    return 2;
}

int ViewTool::Check(std::span<const std::string> paths)
{
    bool allAreSound = true;
    for (const std::string& path : paths) {
        Desk desk(m_files);
        allAreSound = desk.TryLoad(path) && allAreSound;
        m_out << Escaped(path) << ": " << desk.Verdict() << '\n';
    }
    return allAreSound ? 0 : 1;
}

void ViewTool::Dump(const std::string& path)
{
    Desk desk(m_files);
    desk.Load(path);
    m_out << JsonText(ViewToJson(desk.View()));
}

int ViewTool::Build(const std::string& from, const std::string& to)
{
    const std::vector<std::uint8_t> text = ReadWhole(*m_files.Open(from, OpenMode::Read));
    Desk desk(m_files);
    ViewFromJson(ParseJson({reinterpret_cast<const char*>(text.data()), text.size()}), desk.View());
    return Save(desk, to);
}

int ViewTool::Upgrade(const std::string& from, const std::string& to)
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
    WriteOver(to, UpgradeToVersion3(bytes));
    Desk desk(m_files);
    if (desk.View().LoadFile(to)) {
        return 0;
    }
    Warn(to + ": written, but it does not load: " + desk.Verdict());
    return 1;
}

int ViewTool::Resave(const std::string& from, const std::string& to)
{
    Desk desk(m_files);
    desk.Load(from);
    return Save(desk, to);
}

int ViewTool::Save(Desk& desk, const std::string& path)
{
    const SignalHold hold;
    desk.Save(path);
    for (const ErrorReport& report : desk.Logged()) {
        Warn(report.description);
    }
    return 0;
}

void ViewTool::WriteOver(const std::string& path, std::span<const std::uint8_t> bytes)
{
    const SignalHold hold;
    try {
        Warn(WriteWhole(m_files, path, bytes));
    } catch (const Failure& failure) {
        throw Refusal{"cannot save " + path + ": " + failure.Description()};
    }
}

void ViewTool::Warn(const std::string& words)
{
    if (!words.empty()) {
        m_errors << OneLine(words) << '\n';
    }
}

void ViewTool::Render(std::span<const std::string> arguments)
{
    const RenderJob job = ParseRenderJob(arguments);
    WatchedPictures pictures(m_renderer->PictureFiles());
    Desk desk(m_files, &pictures);
    desk.Load(job.from);
    WriteOver(job.to, RenderedPng(desk, job, *m_renderer));
    for (const std::string& each : pictures.Missing()) {
        Warn(job.from + ": " + each);
    }
    if (const std::string told = desk.Told(); !told.empty()) {
        Warn(job.from + ": " + told);
    }
}

} // namespace quor
