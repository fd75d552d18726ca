#include "widgets/canvas.h"

#include "base/guard.h"
#include "widgets/widget_array.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quor {

namespace {
// Far beyond any canvas: stands for all of it.
constexpr Area everywhere{-1e9F, -1e9F, 2e9F, 2e9F};

// As many as the handles of two widgets; with more, the parts become one.
constexpr std::size_t mostParts = 2 * Canvas::handleCount;

// Places of a file can be any numbers, or none. Beyond this, what lies elsewhere would get lost in the rounding.
bool IsPlain(const Area& area) noexcept
{
    constexpr float far = 1e6F; // twips
    return area.left > -far && area.top > -far && area.left + area.width < far && area.top + area.height < far;
}

GridFamily FamilyOf(float step, float end, float length) noexcept
{
    return {step, length, step > 0 ? static_cast<int>(end / step) : 0};
}
} // namespace

GridFamily HorizontalLines(const GridLines& grid) noexcept
{
    return FamilyOf(grid.stepY, grid.height, grid.width);
}

GridFamily VerticalLines(const GridLines& grid) noexcept
{
    return FamilyOf(grid.stepX, grid.width, grid.height);
}

Area United(const Area& one, const Area& other) noexcept
{
    const float left = std::min(one.left, other.left);
    const float top = std::min(one.top, other.top);
    return {left, top, std::max(one.left + one.width, other.left + other.width) - left,
            std::max(one.top + one.height, other.top + other.height) - top};
}

bool Contains(const Area& area, float x, float y) noexcept
{
    return x >= area.left && y >= area.top && x < area.left + area.width && y < area.top + area.height;
}

bool Overlap(const Area& one, const Area& other) noexcept
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

Canvas::Canvas() = default;

Canvas::~Canvas()
{
    m_holds = 1; // nobody is to hear of the end
    m_arrays.clear();
}

WidgetArray& Canvas::AddArray(std::string name, std::unique_ptr<Widget> pattern)
{
    m_arrays.push_back(std::make_unique<WidgetArray>(*this, std::move(name), std::move(pattern)));
    return *m_arrays.back();
}

WidgetArray* Canvas::FindArray(std::string_view name) const noexcept
{
    const auto found =
        std::find_if(m_arrays.begin(), m_arrays.end(), [&](const auto& array) { return array->Name() == name; });
    return found == m_arrays.end() ? nullptr : found->get();
}

void Canvas::SetScrollMaxima(std::int32_t x, std::int32_t y)
{
    m_scrollMaxX = std::max(x, 0);
    m_scrollMaxY = std::max(y, 0);
    ScrollTo(m_scrollX, m_scrollY);
    Scrolled.Raise();
}

void Canvas::ScrollTo(std::int32_t x, std::int32_t y)
{
    x = std::clamp(x, 0, m_scrollMaxX);
    y = std::clamp(y, 0, m_scrollMaxY);
    if (x == m_scrollX && y == m_scrollY) {
        return;
    }
    const CanvasHold hold(*this);
    ShiftBy(static_cast<float>(m_scrollX - x), static_cast<float>(m_scrollY - y));
    m_scrollX = x;
    m_scrollY = y;
    InvalidateAll();
    Scrolled.Raise();
}

Area Canvas::ToView(const Area& area) const noexcept
{
    return {area.left + static_cast<float>(m_scrollX), area.top + static_cast<float>(m_scrollY), area.width,
            area.height};
}

Area Canvas::FromView(const Area& area) const noexcept
{
    return {area.left - static_cast<float>(m_scrollX), area.top - static_cast<float>(m_scrollY), area.width,
            area.height};
}

void Canvas::ShiftBy(float x, float y)
{
    for (Widget* widget = m_back; widget != nullptr; widget = widget->m_above) {
        PropertyAccess::Value(widget->Left) += x;
        PropertyAccess::Value(widget->Top) += y;
    }
    for (GrabHandle& handle : m_handles) {
        handle.left += x;
        handle.top += y;
    }
    m_frame.area.left += x;
    m_frame.area.top += y;
    m_background.left += x;
    m_background.top += y;
}

void Canvas::SetBackColor(Color color)
{
    if (std::exchange(m_backColor, color) != color) {
        InvalidateAll();
    }
}

void Canvas::SetPicture(PictureRef picture, std::int32_t mode)
{
    const bool isOther = picture != m_picture || (picture != nullptr && mode != m_pictureMode);
    m_picture = std::move(picture);
    m_pictureMode = mode;
    if (isOther) {
        InvalidateAll();
    }
}

void Canvas::SetBackground(PictureRef picture, bool visible)
{
    const bool isOther = picture != m_background.picture || (picture != nullptr && visible != m_background.visible);
    m_background.picture = std::move(picture);
    m_background.visible = visible;
    if (isOther) {
        InvalidateAll();
    }
}

void Canvas::PlaceBackground(float left, float top)
{
    m_background.left = left;
    m_background.top = top;
    if (m_background.picture != nullptr) {
        InvalidateAll();
    }
}

void Canvas::Attach(Widget& widget) noexcept
{
    widget.m_canvas = this;
    widget.RenewLook();
    Link(widget, nullptr);
    IgnoreFailure([&] { widget.Invalidate(); });
}

void Canvas::Detach(Widget& widget) noexcept
{
    IgnoreFailure([&] { widget.Invalidate(); });
    Unlink(widget);
    widget.m_canvas = nullptr;
    widget.RenewLook();
}

void Canvas::BringToFront(Widget& widget)
{
    Unlink(widget);
    Link(widget, nullptr);
    widget.Invalidate();
}

void Canvas::SendToBack(Widget& widget)
{
    Unlink(widget);
    Link(widget, m_back);
    widget.Invalidate();
}

// Puts the widget right behind `above`, or in front of all.
void Canvas::Link(Widget& widget, Widget* above) noexcept
{
    widget.m_above = above;
    widget.m_below = above == nullptr ? m_front : above->m_below;
    (widget.m_below == nullptr ? m_back : widget.m_below->m_above) = &widget;
    (above == nullptr ? m_front : above->m_below) = &widget;
}

void Canvas::Unlink(Widget& widget) noexcept
{
    (widget.m_below == nullptr ? m_back : widget.m_below->m_above) = widget.m_above;
    (widget.m_above == nullptr ? m_front : widget.m_above->m_below) = widget.m_below;
}

void Canvas::SetHandle(std::size_t index, const GrabHandle& handle)
{
    GrabHandle& old = m_handles.at(index);
    if (old == handle) {
        return;
    }
    for (const GrabHandle& shown : {old, handle}) {
        if (shown.visible) {
            Invalidate({shown.left, shown.top, handleSize, handleSize});
        }
    }
    old = handle;
}

void Canvas::SetFrame(const SizingFrame& frame)
{
    for (const SizingFrame& shown : {m_frame, frame}) {
        if (shown.visible) {
            Invalidate(shown.area);
        }
    }
    m_frame = frame;
}

void Canvas::SetGrid(const GridLines& grid)
{
    if (grid != m_grid) {
        m_grid = grid;
        InvalidateAll();
    }
}

void Canvas::Invalidate(const Area& area)
{
    const Area& stale = IsPlain(area) ? area : everywhere;
    if (m_holds == 0) {
        Changed.Raise(stale);
        return;
    }
    if (m_stale.size() < mostParts) {
        m_stale.push_back(stale);
    } else {
        m_stale.front() = std::accumulate(m_stale.begin(), m_stale.end(), stale, United);
        m_stale.resize(1);
    }
}

void Canvas::InvalidateAll()
{
    Invalidate(everywhere);
}

void Canvas::Release()
{
    if (--m_holds > 0) {
        return;
    }
    for (const Area& part : std::exchange(m_stale, {})) {
        Changed.Raise(part);
    }
}

CanvasHold::~CanvasHold()
{
    IgnoreFailure([&] { m_canvas.Release(); });
}

} // namespace quor
