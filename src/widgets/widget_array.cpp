#include "widgets/widget_array.h"

#include "base/failure.h"
#include "widgets/canvas.h"

#include <algorithm>
#include <cstddef>

namespace quor {

namespace {
constexpr std::int32_t alreadyLoaded = 360;
}

WidgetArray::WidgetArray(Canvas& canvas, std::string name, std::unique_ptr<Widget> pattern)
    : m_canvas(canvas), m_name(std::move(name))
{
    m_members.push_back(std::move(pattern));
}

WidgetArray::~WidgetArray() = default;

Widget& WidgetArray::Load(std::int32_t index)
{
    if (index < 1) {
        throw Failure(failures::outOfRange);
    }
    const auto at = static_cast<std::size_t>(index);
    if (at < m_members.size() && m_members[at] != nullptr) {
        throw Failure(alreadyLoaded, "Object already loaded");
    }
    std::unique_ptr<Widget> widget = m_members.front()->Clone();
    m_members.resize(std::max(m_members.size(), at + 1));
    widget->m_array = this;
    widget->m_index = index;
    m_canvas.Attach(*widget);
    m_members[at] = std::move(widget);
    return *m_members[at];
}

void WidgetArray::Unload(Widget& widget) noexcept
{
    m_members[static_cast<std::size_t>(widget.m_index)].reset();
    while (m_members.back() == nullptr) {
        m_members.pop_back();
    }
}

} // namespace quor
