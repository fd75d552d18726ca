#pragma once
// The tables of the editor's tools and bands: one row is all there is to know of a tool.

#include "forms/bars.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace quor {

class frmMain;

struct EditorTool : ToolRow {
    // What a click does; null for what only opens, shows or divides.
    void (*effect)(frmMain& main) = nullptr;
};

const BarTables<EditorTool>& EditorBars() noexcept;

// Null for a tool without an effect and for unknown names.
const EditorTool* FindEffect(std::string_view tool) noexcept;

// The bars as they stand at design time, with the words that differ in one band.
std::unique_ptr<Bars> MakeEditorBars();

// The tools that insert an element, by its type.
inline constexpr std::array<std::string_view, 11> insertTools = {
    "miMtrText", "miMtrAngle", "miMtrLinear", "miLEDRound", "miLEDRect", "miStatLabel",
    "miStatPic", "miCmdLED",   "miCommand",   "miPic",      "miLabel",
};

} // namespace quor
