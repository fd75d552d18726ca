#pragma once
// The commands of quor-view-tool: check, dump, build, upgrade, resave and render.

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>

namespace quor {

class Desk;
class Files;
class ViewRenderer;

class ViewTool {
public:
    // Without a renderer there is no render command.
    ViewTool(Files& files, std::ostream& out, std::ostream& errors, ViewRenderer* renderer = nullptr)
        : m_files(files), m_out(out), m_errors(errors), m_renderer(renderer)
    {
    }

    // The exit code: 0 if all went well, 1 if a checked or upgraded file isn't sound, 2 (with one line on `errors`) if
    // the command could not run. What has failed has written no file.
    int Run(std::span<const std::string> arguments);

private:
    int Check(std::span<const std::string> paths);
    void Dump(const std::string& path);
    int Build(const std::string& from, const std::string& to);
    int Upgrade(const std::string& from, const std::string& to);
    int Resave(const std::string& from, const std::string& to);
    void Render(std::span<const std::string> arguments);
    int Save(Desk& desk, const std::string& path);
    void WriteOver(const std::string& path, std::span<const std::uint8_t> bytes);
    void Warn(const std::string& words); // a line, unless there are none
    int RunCommand(std::span<const std::string> arguments);

    Files& m_files;
    std::ostream& m_out;
    std::ostream& m_errors;
    ViewRenderer* m_renderer;
};

} // namespace quor
