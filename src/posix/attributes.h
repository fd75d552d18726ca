#pragma once
// What a new file takes over from the one whose place it takes, beside the bytes.

#include <string>
#include <sys/stat.h>

namespace quor::posix {

class Descriptor;

// Gives a new file, which its owner alone can read as yet, the owner, group, permissions, access list and user
// attributes of an old one, as far as this user may. What can't be kept leaves it open to fewer, never to more.
void TakeOverAttributes(const std::string& oldPath, const struct stat& old, const Descriptor& file);

} // namespace quor::posix
