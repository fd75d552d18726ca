#pragma once
// New files that take after an old one, and that last.

#include "posix/descriptor.h"

#include <string>

namespace quor::posix {

// A new, empty file with the attributes of another; it goes again if it can't have them.
Descriptor CreateLike(const std::string& path, const std::string& model);

// Brings a file that has just been made, and its name, to the disk.
void FlushNew(const Descriptor& file);

} // namespace quor::posix
