#pragma once
// Tells how far the load of a view is.

#include <cstdint>
#include <string>

namespace quor {

class LoadProgress {
public:
    virtual ~LoadProgress() = default;

    // Steps up to `maximum` follow. Fails where what tells them can't be made.
    virtual void Begin(const std::string& caption, std::int16_t maximum, bool isShown) = 0;
    // One more; then the event loop may run, whether anything is shown or not.
    virtual void IncrProgBar() noexcept = 0;
    // However the load ended, and whether it began or not.
    virtual void CloseMe() noexcept = 0;
};

} // namespace quor
