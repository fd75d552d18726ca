#pragma once
// The elements of one kind: makes them, names them, and keeps them in two lists.

#include "base/keyed_list.h"
#include "elements/element.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quor {

struct Kind;
struct Live;
class Canvas;
class WidgetArray;

// All elements of a view from back to front, keyed by their names. It points to them; the collections own them.
using ElementOrder = KeyedList<Element*>;

class Collection {
public:
    using List = KeyedList<std::unique_ptr<Element>>;

    // Of one kind, on the canvas's array for it.
    Collection(const Kind& kind, Canvas& canvas, Live& live);

    // The shared order, given by the document right after creation.
    void SetCtlOrder(std::shared_ptr<ElementOrder> order) { m_order = std::move(order); }

    // A new element with the first settings of its widget, at a place in view coordinates. An empty name asks for the
    // next default name. Fails with 457 for a name in use (regardless of case), and leaves nothing behind then.
    Element& Add(float top, float left, std::string_view name, bool visible);

    // By name (regardless of case; 5 if there is none) or by position from 1 (9).
    Element& Item(std::string_view name) const { return *m_list.Item(name); }
    Element& Item(std::size_t position) const { return *m_list.Item(position); }
    std::size_t Count() const noexcept { return m_list.Count(); }

    // Ends the element and its widget.
    void Remove(std::string_view name);

    // Whether an element has exactly this name.
    bool FindItem(std::string_view name) const noexcept;

    List::Iterator begin() const { return m_list.begin(); }
    List::Iterator end() const { return m_list.end(); }

    const Kind& KindOfElements() const noexcept { return m_kind; }

private:
    std::string DefaultName(std::int32_t number) const;
    Element& Enter(std::unique_ptr<Element> element);

    const Kind& m_kind;
    Canvas& m_canvas;
    Live& m_live;
    WidgetArray* m_array; // null while the kind doesn't exist
    std::shared_ptr<ElementOrder> m_order;
    List m_list;
};

} // namespace quor
