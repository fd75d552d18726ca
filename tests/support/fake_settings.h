#pragma once
// The user's settings as members that a test sets.

#include "platform/settings.h"
#include "tests/support/planned_failures.h"

namespace quor {

class FakeSettings final : public ApplicationSettings {
public:
    PlannedFailures planned; // read, write

    std::int32_t gridSize = 10;
    bool showGrid = true;
    bool snapToGrid = true;
    std::string viewsDirectory;
    std::string toolbarDirectory;
    std::string helpFile;

    std::int32_t GridSize() override { return Read(gridSize); }
    void SetGridSize(std::int32_t pixels) override { Write(gridSize, pixels); }
    bool ShowGrid() override { return Read(showGrid); }
    void SetShowGrid(bool show) override { Write(showGrid, show); }
    bool SnapToGrid() override { return Read(snapToGrid); }
    void SetSnapToGrid(bool snap) override { Write(snapToGrid, snap); }
    std::string ViewsDirectory() override { return Read(viewsDirectory); }
    std::string ToolbarDirectory() override { return Read(toolbarDirectory); }
    std::string HelpFile() override { return Read(helpFile); }

private:
    template <class T> T Read(const T& member)
    {
        planned.Count("read");
        return member;
    }
    template <class T> void Write(T& member, T value)
    {
        planned.Count("write");
        member = value;
    }
};

} // namespace quor
