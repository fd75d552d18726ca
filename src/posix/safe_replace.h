#pragma once
// Files that come into a place whole: over an old file, from a scratch file, or after an old one.

#include "posix/descriptor.h"

#include <string>

namespace quor::posix {

// The path that the last link of a chain of links names; it need not exist.
std::string FollowLinks(std::string path);

// Puts the bytes of `from` in the place of `to`, links of which are followed. The new bytes are on the disk before they
// take the place, in one step. Of an old target owner, permissions, access list and user attributes are kept; without
// the right to write it, 70. Its other names (hard links) keep the old bytes.
//
// Where the folder takes no new file, the old bytes go to a scratch file and the target is written in place. A failure
// puts them back. A kill, or a loss of power, in the middle leaves a torn target, and the old bytes whole in the folder
// for temporary files or, where that can't take them, in the spare one: under the target's name with ".quor", digits
// and ".old" behind it. Nothing deletes that file.
void ReplaceFile(const std::string& from, const std::string& to);

// A second scratch file with the bytes of the first, neither of which is written again: they may be the same bytes.
void CopyScratch(const std::string& from, const std::string& to);

// A new, empty file with the attributes of another; it goes again if it can't have them.
Descriptor CreateLike(const std::string& path, const std::string& model);

// Brings a file that has just been made, and its name, to the disk.
void FlushNew(const Descriptor& file);

} // namespace quor::posix
