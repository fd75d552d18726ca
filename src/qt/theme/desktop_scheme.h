#pragma once
// The colour scheme that the user prefers, as the desktop tells all programs.

namespace quor {

// True if the desktop says so. Asks nobody who isn't running already, and waits for no slow answer.
bool DesktopPrefersDark();

} // namespace quor
