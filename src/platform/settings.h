#pragma once
// The user's settings, kept between runs. What can't be kept fails with 75, and the setting stays as it was.

#include <cstdint>
#include <string>

namespace quor {

class ApplicationSettings {
public:
    virtual ~ApplicationSettings() = default;

    virtual std::int32_t GridSize() = 0; // pixels
    virtual void SetGridSize(std::int32_t pixels) = 0;
    virtual bool ShowGrid() = 0;
    virtual void SetShowGrid(bool show) = 0;
    virtual bool SnapToGrid() = 0;
    virtual void SetSnapToGrid(bool snap) = 0;
    virtual std::string ViewsDirectory() = 0;
    virtual std::string ToolbarDirectory() = 0;
    virtual std::string HelpFile() = 0;
};

} // namespace quor
