#pragma once
// How long programs take from their start to the painted main window.

#include <filesystem>

namespace quor::bench {

// Seconds of one start of that program of the build, without a display, settings or earlier files.
double SecondsToPaint(const std::filesystem::path& program);

} // namespace quor::bench
