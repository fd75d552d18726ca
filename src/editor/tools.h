#pragma once
// The tables of the editor's tools and bands: one row is all there is to know of a tool.

#include "forms/bars.h"

#include <memory>
#include <string_view>

namespace quor {

class frmMain;

struct EditorTool : ToolRow {
    // What a click does; null for what only opens, shows or divides.
    void (*effect)(frmMain& main) = nullptr;
};

// Null for a tool without an effect and for unknown names.
const EditorTool* FindEffect(std::string_view tool) noexcept;

// The bars as they stand at design time, with the words that differ in one band.
std::unique_ptr<Bars> MakeEditorBars();

} // namespace quor
