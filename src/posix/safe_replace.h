#pragma once
// Replaces a file in one step: its target is whole at any moment, and nothing is left behind by a failure.

#include <string>

namespace quor::posix {

// A bare name of 128 random bits.
std::string RandomName();

// Whether the path's name has the form of those that RandomName gives.
bool HasRandomName(const std::string& path);

// Gives a scratch file a second name. False where the file system can't.
bool LinkScratch(const std::string& from, const std::string& to) noexcept;

// Puts the bytes of `from` in the place of `to`, links of which are followed. The new bytes are on the disk before they
// take the place. Permissions and owner of an old target are kept; without the right to write it, 70.
void ReplaceFile(const std::string& from, const std::string& to);

} // namespace quor::posix
