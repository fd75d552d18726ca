#include "editor/frm_view_toolbox.h"

#include "base/guard.h"
#include "editor/canvas_mouse.h"

#include <algorithm>
#include <limits>

namespace quor {

frmViewToolbox::frmViewToolbox(Reporter& reporter, CanvasMouse& mouse) : m_reporter(reporter), m_mouse(mouse)
{
    for (std::size_t index = 0; index < kindCount; ++index) {
        m_buttons[index] = {&Kinds()[index], {0, 0, buttonSize, buttonSize}};
    }
    Form_Resize(0);
}

void frmViewToolbox::Form_Resize(float width)
{
    const float limit = std::clamp(width, 0.0F, float{std::numeric_limits<std::int16_t>::max()});
    float x = 0;
    float y = 0;
    for (std::size_t index = 1; index < kindCount; ++index) {
        const Area& previous = m_buttons[index - 1].place;
        Area& place = m_buttons[index].place;
        x += twipsPerPixelX + previous.width;
        if (x + place.width > limit) {
            x = 0;
            y += twipsPerPixelY + previous.height;
        }
        place.left = x;
        place.top = y;
    }
}

void frmViewToolbox::cmdTool_MouseDown(std::size_t index, MouseButton button)
{
    Guard(m_reporter, Ref("frmViewToolbox.cmdTool"), "Unable to select the tool you clicked on. Please try again.",
          [&] {
              if (button == MouseButton::Left) {
                  m_mouse.BeginToolDrag(index);
              }
          });
}

} // namespace quor
