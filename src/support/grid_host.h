#pragma once
// What the options use of the form that shows the grid.

#include <cstdint>

namespace quor {

class GridHost {
public:
    virtual ~GridHost() = default;

    virtual std::int16_t GridSize() const noexcept = 0; // pixels
    virtual void SetGridSize(std::int16_t pixels) noexcept = 0;
    virtual bool GridVisible() const noexcept = 0;

    // The lines are those of the pitch at the last LoadGrid.
    virtual void LoadGrid() = 0;
    virtual void ShowGrid() = 0;
    virtual void HideGrid() = 0;
};

} // namespace quor
