#pragma once
// Names of scratch files, the folders for them, and what killed programs have left there.

#include <string>

namespace quor::posix {

// A bare name of 128 random bits.
std::string RandomName();

// TMPDIR, or /tmp.
std::string TempFolder();

// The user's folder for state, made if missing. Empty if it can't be.
std::string SpareFolder();

// Deletes the scratch files of this user in a folder that nobody has written for a day. Never fails.
void SweepLeftOvers(const std::string& folder) noexcept;

} // namespace quor::posix
