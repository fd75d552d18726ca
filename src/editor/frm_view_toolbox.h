#pragma once
// The toolbox: a button a kind of element, that are dragged onto the canvas.

#include "base/values.h"
#include "document/kinds.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quor {

class CanvasMouse;
class Reporter;
enum class MouseButton : std::int16_t;

// One of the buttons (cmdTool); its index is the type of the kind.
struct ToolboxButton {
    const Kind* kind;
    Area place; // twips
};

class frmViewToolbox {
public:
    static constexpr float buttonSize = 405; // twips

    frmViewToolbox(Reporter& reporter, CanvasMouse& mouse);

    const std::array<ToolboxButton, kindCount>& cmdTool() const noexcept { return m_buttons; }

    // The inner width has changed, in twips: the buttons flow from left to right and wrap.
    void Form_Resize(float width);

    // The left button starts its drag.
    void cmdTool_MouseDown(std::size_t index, MouseButton button);

private:
    Reporter& m_reporter;
    CanvasMouse& m_mouse;
    std::array<ToolboxButton, kindCount> m_buttons;
};

} // namespace quor
