#pragma once
// The kinds of element, one row each: everything above that speaks of kinds derives from these rows.

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace quor {

class Canvas;
class Element;
class Widget;
struct Live;

struct Kind {
    std::uint8_t type;        // record type, number of the toolbox button
    std::string_view array;   // widget array of the canvas; also the name of the kind's property page tab
    std::string_view prefix;  // of default names
    std::string_view caption; // tip of the toolbox button, caption of the tab
    std::unique_ptr<Widget> (*makePrototype)();
    std::unique_ptr<Element> (*makeElement)(Widget& widget, Live& live);
};

// In the order of their types, 0 to 10.
std::span<const Kind> Kinds() noexcept;

// Null for a number or an array that is none of a kind.
const Kind* FindKind(std::int32_t type) noexcept;
const Kind* FindKind(std::string_view array) noexcept;

// Gives the canvas the widget arrays of all kinds.
void AddWidgetArrays(Canvas& canvas);

} // namespace quor
