// quor-view-tool: checks, prints, rewrites and draws view files without a window, and keeps the file of users.

#include "apps/login/sodium_hasher.h"
#include "apps/tool/password_prompt.h"
#include "apps/tool/user_tool.h"
#include "apps/tool/view_renderer.h"
#include "apps/tool/view_tool.h"
#include "posix/disk_files.h"
#include "posix/user_folders.h"

#include <iostream>
#include <vector>

namespace {

int Run(quor::DiskFiles& files, std::span<const std::string> words)
{
    if (words.empty() || words.front() != "user") {
        const std::unique_ptr<quor::ViewRenderer> renderer = quor::MakeViewRenderer();
        return quor::ViewTool(files, std::cout, std::cerr, renderer.get()).Run(words);
    }
    quor::SodiumHasher hasher;
    const quor::UserTool::Ports ports{files, hasher, quor::AskNewPassword, std::cout, std::cerr};
    return quor::UserTool(ports, {quor::ConfigFolder(), quor::StateFolder()}).Run(words.subspan(1));
}

} // namespace

int main(int count, char** arguments)
{
    quor::DiskFiles files;
    const std::vector<std::string> words(arguments + (count > 0 ? 1 : 0), arguments + count);
    const int code = Run(files, words);
    if (!std::cout.flush()) {
        std::cerr << "the output could not be written\n";
        return 2;
    }
    return code;
}
