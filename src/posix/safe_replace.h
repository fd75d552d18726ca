#pragma once
// Replaces a file in one step: its target is whole at any moment, and nothing is left behind by a failure.

#include <string>

namespace quor::posix {

// A bare name of 128 random bits.
std::string RandomName();

// Puts the bytes of `from` in the place of `to`, links of which are followed. The new bytes are on the disk before they
// take the place. Permissions and owner of an old target are kept; without the right to write it, 70.
void ReplaceFile(const std::string& from, const std::string& to);

} // namespace quor::posix
