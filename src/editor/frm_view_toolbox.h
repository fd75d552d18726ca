#pragma once
// The toolbox: eleven buttons, one a kind of element, that are dragged onto the canvas.

#include "base/values.h"
#include "document/kinds.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quor {

class Reporter;
enum class MouseButton : std::int16_t;

// What takes up the drag of a button.
class ToolDragHost {
public:
    virtual ~ToolDragHost() = default;
    virtual void BeginToolDrag(std::size_t index) = 0;
};

// One of the buttons (cmdTool); its index is the type of the kind.
struct ToolboxButton {
    const Kind* kind;
    Area place; // twips
};

class frmViewToolbox {
public:
    static constexpr float buttonSize = 405; // twips
    static constexpr std::size_t buttonCount = 11;

    frmViewToolbox(Reporter& reporter, ToolDragHost& host);

    const std::array<ToolboxButton, buttonCount>& cmdTool() const noexcept { return m_buttons; }

    // The inner width has changed, in twips: the buttons flow from left to right and wrap.
    void Form_Resize(float width);

    // The left button starts its drag.
    void cmdTool_MouseDown(std::size_t index, MouseButton button);

private:
    Reporter& m_reporter;
    ToolDragHost& m_host;
    std::array<ToolboxButton, buttonCount> m_buttons;
};

} // namespace quor
