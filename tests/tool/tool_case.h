#pragma once
// The view tool on files in memory.

#include "apps/tool/view_tool.h"
#include "tests/format/samples.h"
#include "tests/test.h"

namespace quor {

class ToolCase : public testing::Test {
protected:
    int Run(const std::vector<std::string>& arguments)
    {
        out.str("");
        errors.str("");
        return ViewTool(files, out, errors).Run(arguments);
    }

    void PutSample(const std::string& name) { files.Put(name, Sample(name)); }

    FakeFiles files;
    std::ostringstream out;
    std::ostringstream errors;
};

} // namespace quor
