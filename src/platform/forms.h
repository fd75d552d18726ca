#pragma once
// The form runtime: puts forms on the screen and runs the event loop.

#include <memory>

namespace quor {

class Form;

class Forms {
public:
    virtual ~Forms() = default;

    // Shows the form without blocking; it stays its caller's. Again: nothing.
    virtual void Show(Form& form) = 0;

    // Shows the form above all others and blocks the user's way to them until it unloads itself. Callers do nothing
    // behind this call that relies on the form being gone.
    virtual void ShowModal(std::unique_ptr<Form> form) = 0;

    // Takes a shown form off the screen; else nothing.
    virtual void Hide(Form& form) = 0;

    // Unloads every form that is shown or was shown without blocking.
    virtual void UnloadAll() = 0;

    // Lets timers, server events and repaints run, unless they did within the last pause; the user's input waits. A
    // load of thousands of elements calls it at each of them.
    virtual void RunEvents() = 0;
    static constexpr int pauseBetweenRuns = 5; // milliseconds
};

} // namespace quor
