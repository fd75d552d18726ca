#pragma once
// The commands of quor-view-tool: check, dump, build, upgrade and resave.

#include <iosfwd>
#include <span>
#include <string>

namespace quor {

class Files;

class ViewTool {
public:
    ViewTool(Files& files, std::ostream& out, std::ostream& errors) : m_files(files), m_out(out), m_errors(errors) {}

    // The exit code: 0 if all went well, 1 if a checked file isn't sound, 2 (with one line on `errors`) if the command
    // could not run. What has failed has written no file.
    int Run(std::span<const std::string> arguments);

private:
    int Check(std::span<const std::string> paths);
    void Dump(const std::string& path);
    void Build(const std::string& from, const std::string& to);
    void Upgrade(const std::string& from, const std::string& to);
    void Resave(const std::string& from, const std::string& to);
    int RunCommand(std::span<const std::string> arguments);

    Files& m_files;
    std::ostream& m_out;
    std::ostream& m_errors;
};

} // namespace quor
