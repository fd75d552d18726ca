#pragma once
// What this process may do: little from its start, next to nothing once all that drawing needs is loaded.

#include <chrono>

namespace quor {

// At the start: it ends after that time, and with the process that began it; memory is short, and no file is written.
void ConfineThisProcess(std::chrono::milliseconds most);

// From then on nothing is opened, connected or started, by whatever code: only what is open already is read and
// written. False if the kernel doesn't filter calls: then no more than that nothing can be opened holds.
bool ForbidAllButDrawing();

} // namespace quor
