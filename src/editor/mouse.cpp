#include "editor/mouse.h"

#include <algorithm>

namespace quor {

namespace {

constexpr float leastSide = Canvas::handleSize; // of what can be pressed

// A side as it is pressed: at least so long, about the same middle.
void Lengthen(float& start, float& length)
{
    if (length < leastSide) {
        start -= (leastSide - length) / 2;
        length = leastSide;
    }
}

Area PressArea(const Widget& widget)
{
    Area area = widget.Bounds();
    Lengthen(area.left, area.width);
    Lengthen(area.top, area.height);
    return area;
}

// Makes what hardly reaches into a stretch, or lies beyond it, reach into its end.
void BringInto(float low, float high, float& start, float& length)
{
    float end = start + length;
    if (end < low + leastSide) {
        start = std::max(start, low);
        end = low + leastSide;
    } else if (start > high - leastSide) {
        start = high - leastSide;
        end = std::min(end, high);
    }
    length = end - start;
}

// The frontmost widget there. One that lies where nobody can scroll to is pressed at the edge next to it, unless
// something else lies there.
Widget* WidgetAt(const Canvas& canvas, const Area& reach, float x, float y) noexcept
{
    Widget* beyond = nullptr;
    for (Widget* widget = canvas.Front(); widget != nullptr; widget = widget->Below()) {
        if (!widget->Visible()) {
            continue;
        }
        Area area = PressArea(*widget);
        if (Contains(area, x, y)) {
            return widget;
        }
        BringInto(reach.left, reach.left + reach.width, area.left, area.width);
        BringInto(reach.top, reach.top + reach.height, area.top, area.height);
        if (beyond == nullptr && Contains(area, x, y)) {
            beyond = widget;
        }
    }
    return beyond;
}

// All that can be scrolled to, within the visible part.
Area ReachOf(const Canvas& canvas, const Area& shown)
{
    return United(shown, canvas.FromView(
                             {0, 0, static_cast<float>(canvas.ScrollMaxX()), static_cast<float>(canvas.ScrollMaxY())}));
}

} // namespace

CanvasTarget HitTest(const Canvas& canvas, const Area& shown, float x, float y) noexcept
{
    using enum CanvasTarget::What;
    const auto& handles = canvas.Handles();
    for (std::size_t index = handles.size(); index-- > 0;) {
        const GrabHandle& handle = handles[index];
        if (handle.visible && Contains({handle.left, handle.top, Canvas::handleSize, Canvas::handleSize}, x, y)) {
            return {Handle, nullptr, index, handle.left, handle.top};
        }
    }
    if (Widget* widget = WidgetAt(canvas, ReachOf(canvas, shown), x, y)) {
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
