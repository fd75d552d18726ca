#include "editor/mouse.h"

#include "widgets/canvas.h"

namespace quor {

CanvasTarget HitTest(const Canvas& canvas, float x, float y) noexcept
{
    using enum CanvasTarget::What;
    const auto& handles = canvas.Handles();
    for (std::size_t index = handles.size(); index-- > 0;) {
        const GrabHandle& handle = handles[index];
        if (handle.visible && Contains({handle.left, handle.top, Canvas::handleSize, Canvas::handleSize}, x, y)) {
            return {Handle, nullptr, index, handle.left, handle.top};
        }
    }
    if (Widget* widget = canvas.WidgetAt(x, y)) {
        return {Element, widget, 0, widget->Left(), widget->Top()};
    }
    const BackgroundImage& image = canvas.Background();
    if (image.visible && image.picture != nullptr) {
        const Area area{image.left, image.top, static_cast<float>(image.picture->PixelWidth()) * twipsPerPixelX,
                        static_cast<float>(image.picture->PixelHeight()) * twipsPerPixelY};
        if (Contains(area, x, y)) {
            return {Background, nullptr, 0, image.left, image.top};
        }
    }
    return {};
}

} // namespace quor
