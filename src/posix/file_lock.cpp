#include "posix/file_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace quor::posix {

FileLock::FileLock(const std::string& path) : m_file(path, O_RDWR | O_CREAT, S_IRUSR | S_IWUSR)
{
    while (flock(m_file.Number(), LOCK_EX) != 0) {
        m_file.Check(errno == EINTR ? 0 : -1);
    }
}

} // namespace quor::posix
