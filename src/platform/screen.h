#pragma once
// The screen: the mouse pointer of all the program's windows.

namespace quor {

enum class MousePointer { Default = 0, Hourglass = 11 };

class Screen {
public:
    virtual ~Screen() = default;
    virtual void SetMousePointer(MousePointer pointer) = 0;
};

} // namespace quor
