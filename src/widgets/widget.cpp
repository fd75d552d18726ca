#include "widgets/widget.h"

#include "widgets/canvas.h"
#include "widgets/widget_array.h"

#include <algorithm>
#include <iterator>

namespace quor {

Widget::Widget(const Widget& other)
    : Left(other.Left), Top(other.Top), Width(other.Width), Height(other.Height), Visible(other.Visible),
      Enabled(other.Enabled), Tag(other.Tag)
{
}

Widget::~Widget()
{
    if (m_canvas != nullptr) {
        m_canvas->Detach(*this);
    }
}

void Widget::Move(float left, float top, float width, float height)
{
    Set(&Widget::Left, left);
    Set(&Widget::Top, top);
    Set(&Widget::Width, width);
    Set(&Widget::Height, height);
}

const std::string& Widget::Name() const noexcept
{
    static const std::string none;
    return m_array == nullptr ? none : m_array->Name();
}

void Widget::VisitProperties(PropertyVisitor& visitor) const
{
    VisitEach(visitor, Left, Top, Width, Height, Visible, Enabled, Tag);
}

bool Widget::ChangesLook(const void* property) const
{
    const void* others[] = {&Left, &Top, &Width, &Height, &Visible, &Tag};
    return std::find(std::begin(others), std::end(others), property) == std::end(others);
}

void Widget::RenewLook() noexcept
{
    m_look = m_canvas == nullptr ? 0 : m_canvas->NextLook();
}

void Widget::InvalidateShown() const
{
    m_canvas->Invalidate(Bounds());
}

void Widget::InvalidateChanged(const Area& before, const Area& after) const
{
    const bool isGone = after == Area{};
    if (before == after || before == Area{} || isGone) {
        if (const Area& shows = isGone ? before : after; shows != Area{}) {
            m_canvas->Invalidate(shows);
        }
    } else if (Overlap(before, after)) {
        m_canvas->Invalidate(United(before, after));
    } else {
        m_canvas->Invalidate(before);
        m_canvas->Invalidate(after);
    }
}

void Widget::RepaintNow() const
{
    if (m_canvas != nullptr) {
        m_canvas->Tracer().Repaints(*this);
    }
}

void Widget::Writes(const WrittenProperty& property) const
{
    if (m_canvas != nullptr) {
        m_canvas->Tracer().Writes(*this, property);
    }
}

} // namespace quor
