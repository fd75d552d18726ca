#pragma once
// A lock that one process of the machine holds at a time; the next one waits until it ends.

#include "posix/descriptor.h"

namespace quor::posix {

class FileLock {
public:
    // The file is made if it is missing, and stays: whoever deleted it would let in one too many.
    explicit FileLock(const std::string& path);

private:
    Descriptor m_file;
};

} // namespace quor::posix
