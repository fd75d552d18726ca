// quor-view-tool: checks, prints and rewrites view files without a window.

#include "apps/tool/view_tool.h"
#include "posix/disk_files.h"

#include <iostream>
#include <vector>

int main(int count, char** arguments)
{
    quor::DiskFiles files;
    const std::vector<std::string> words(arguments + (count > 0 ? 1 : 0), arguments + count);
    const int code = quor::ViewTool(files, std::cout, std::cerr).Run(words);
    if (!std::cout.flush()) {
        std::cerr << "the output could not be written\n";
        return 2;
    }
    return code;
}
