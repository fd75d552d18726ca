#pragma once
// The clipboard and the help viewer, as a test sees them.

#include "base/event.h"
#include "platform/clipboard.h"
#include "platform/help.h"
#include "tests/support/planned_failures.h"

#include <vector>

namespace quor {

class FakeClipboard final : public Clipboard {
public:
    PlannedFailures planned; // set

    std::string text;

    void Clear() override { text.clear(); }
    void SetText(const std::string& newText) override
    {
        planned.Count("set");
        text = newText;
    }
};

class FakeHelp final : public Help {
public:
    std::vector<std::string> shown; // paths

    void ShowContents(const std::string& path) override { shown.push_back(path); }
};

} // namespace quor
