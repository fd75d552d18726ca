#include "document/collection.h"

#include "base/narrow.h"
#include "document/kinds.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace quor {

Collection::Collection(const Kind& kind, Canvas& canvas, Live& live)
    : m_kind(kind), m_canvas(canvas), m_live(live), m_array(canvas.FindArray(kind.array))
{
}

Element& Collection::Add(float top, float left, std::string_view name, bool visible)
{
    if (m_array == nullptr) {
        throw Failure(failures::invalidCall, std::string(m_kind.caption));
    }
    const std::int32_t index = m_array->UpperBound() + 1;
    Widget& widget = m_array->Load(index);
    // From here on the element ends the widget when something fails.
    std::unique_ptr<Element> element = m_kind.makeElement(widget, m_live);
    widget.Set(&Widget::Top, ToSingle(double{top} - m_canvas.ScrollOffsetY()));
    widget.Set(&Widget::Left, ToSingle(double{left} - m_canvas.ScrollOffsetX()));
    widget.Set(&Widget::Visible, visible);
    std::string given = name.empty() ? DefaultName(index) : std::string(name);
    widget.Set(&Widget::Tag, given);
    element->Set(&Element::ObjName, std::move(given));
    element->ReadControlProps();
    return Enter(std::move(element));
}

Element& Collection::Enter(std::unique_ptr<Element> element)
{
    Element& entered = *element;
    const std::string name = entered.ObjName();
    m_list.Add(name, std::move(element));
    try {
        m_order->Add(name, &entered);
    } catch (...) {
        m_list.Remove(name);
        throw;
    }
    return entered;
}

void Collection::Remove(std::string_view name)
{
    const std::string key = Item(name).ObjName();
    m_order->Remove(key);
    m_list.Remove(key);
}

bool Collection::FindItem(std::string_view name) const noexcept
{
    const std::unique_ptr<Element>* found = m_list.Find(name);
    return found != nullptr && (*found)->ObjName() == name;
}

std::string Collection::DefaultName(std::int32_t number) const
{
    std::string name;
    do {
        name = std::string(m_kind.prefix) + std::to_string(number);
        number = Narrow<std::int32_t>(std::int64_t{number} + 1);
    } while (FindItem(name));
    return name;
}

} // namespace quor
