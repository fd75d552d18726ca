#pragma once
// A control array: a hidden pattern as member 0 and the widgets that were loaded from it.

#include "widgets/widget.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quor {

class WidgetArray {
public:
    WidgetArray(Canvas& canvas, std::string name, std::unique_ptr<Widget> pattern);
    ~WidgetArray();
    WidgetArray(const WidgetArray&) = delete;
    WidgetArray& operator=(const WidgetArray&) = delete;

    const std::string& Name() const noexcept { return m_name; }
    const Widget& Pattern() const noexcept { return *m_members.front(); }

    // The highest index in use, 0 for none.
    std::int32_t UpperBound() const noexcept { return static_cast<std::int32_t>(m_members.size()) - 1; }

    // A new member from the pattern, invisible and on the canvas in front of all others; 360 if the index is in use.
    Widget& Load(std::int32_t index);

    // Ends a member. Its index is free again, and the upper bound falls with the highest one.
    void Unload(Widget& widget) noexcept;

private:
    Canvas& m_canvas;
    std::string m_name;
    std::vector<std::unique_ptr<Widget>> m_members;
};

} // namespace quor
