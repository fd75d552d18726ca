#pragma once
// The kinds of element, one row each: everything above that speaks of kinds derives from these rows.

#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <string_view>

namespace quor {

class Canvas;
class Element;
class Widget;
struct Live;

// What a kind is called. The array's name without its first three letters names its page, and the tool that hosts it.
struct KindNames {
    std::string_view array;   // widget array of the canvas, tab of the property panel
    std::string_view prefix;  // of default names
    std::string_view caption; // of the tab, tip of the toolbox button
    int toolId;               // of the tool that inserts one
    std::string_view tool;    // its name, that of its icon
    std::string_view toolCaption;
};

// In the order of their types: record types, numbers of the toolbox buttons.
// clang-format off
inline constexpr KindNames kindNames[] = {
    {"ctlMeterText", "Meter (Text) ", "Meter (Text)", 36, "miMtrText", "Text Meter"},
    {"ctlMeterAngle", "Meter (Angle) ", "Meter (Angular)", 34, "miMtrAngle", "Angular Meter"},
    {"ctlMeterLinear", "Meter (Linear) ", "Meter (Linear)", 35, "miMtrLinear", "Linear Meter"},
    {"ctlLEDRound", "LED (Round) ", "LED (Round)", 37, "miLEDRound", "Round LED"},
    {"ctlLEDRect", "LED (Rectangular) ", "LED (Rectangular)", 38, "miLEDRect", "Rectangular LED"},
    {"ctlStatusLabel", "Status Label ", "Status Label", 41, "miStatLabel", "Status Label"},
    {"ctlBlnPic", "Round LED ", "Status Picture", 42, "miStatPic", "Status Picture"}, // the prefix is on purpose: names in files are kept
    {"ctlCmdLED", "Command and LED ", "Command and LED", 44, "miCmdLED", "Command with LED"},
    {"ctlCommand", "Command ", "Command", 43, "miCommand", "Command Button"},
    {"ctlPicture", "Picture ", "Picture", 40, "miPic", "Picture"},
    {"ctlLabel", "Label ", "Label", 39, "miLabel", "Label"},
};
// clang-format on
inline constexpr std::size_t kindCount = std::size(kindNames);

struct Kind : KindNames {
    std::uint8_t type;
    std::unique_ptr<Widget> (*makePrototype)();
    std::unique_ptr<Element> (*makeElement)(Widget& widget, Live& live);
};

// In the order of their types.
std::span<const Kind> Kinds() noexcept;

// Null for a number or an array that is none of a kind.
const Kind* FindKind(std::int32_t type) noexcept;
const Kind* FindKind(std::string_view array) noexcept;

// Gives the canvas the widget arrays of all kinds.
void AddWidgetArrays(Canvas& canvas);

} // namespace quor
