#include "posix/descriptor.h"

#include "base/failure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace quor::posix {

namespace {

// Whether the folder that would hold the path is there.
bool HasFolder(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    struct stat status {};
    return slash == std::string::npos || slash == 0 ||
           (stat(path.substr(0, slash).c_str(), &status) == 0 && S_ISDIR(status.st_mode));
}

std::int32_t NumberOf(int error, const std::string& path)
{
    switch (error) {
    case ENOENT:
        return HasFolder(path) ? failures::fileNotFound : failures::pathNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
        return failures::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
        return failures::permissionDenied;
    default:
        return failures::pathFileAccess;
    }
}

} // namespace

void Fail(int error, const std::string& path)
{
    const std::int32_t number = NumberOf(error, path);
    std::string description(DescriptionOf(number));
    if (number == failures::pathFileAccess) {
        description += " (" + std::generic_category().message(error) + ")";
    }
    throw Failure(number, std::move(description));
}

Descriptor::Descriptor(std::string path, int flags, unsigned mode) : m_path(std::move(path)), m_number(-1)
{
    if (m_path.find('\0') != std::string::npos) {
        Fail(EINVAL, m_path);
    }
    m_number = open(m_path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode);
    Check(m_number);
    if ((flags & O_EXCL) != 0) {
        return; // a new file is a regular one
    }
    struct stat status {};
    const int error = fstat(m_number, &status) == 0 ? 0 : errno;
    if (error != 0 || !S_ISREG(status.st_mode)) {
        close(m_number);
        if (error != 0) {
            Fail(error, m_path);
        }
        throw Failure(failures::pathFileAccess,
                      S_ISDIR(status.st_mode) ? "This is a folder." : "This is no regular file.");
    }
}

Descriptor::~Descriptor()
{
    if (m_number >= 0) {
        close(m_number);
    }
}

std::int64_t Descriptor::Size() const
{
    struct stat status {};
    Check(fstat(m_number, &status));
    return status.st_size;
}

std::size_t Descriptor::Read(std::int64_t position, std::span<std::uint8_t> bytes) const
{
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pread(m_number, bytes.data() + done, bytes.size() - done, position + static_cast<std::int64_t>(done));
        if (count == 0) {
            break;
        }
        if (count > 0) {
            done += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            Fail(errno, m_path);
        }
    }
    return done;
}

void Descriptor::Write(std::int64_t position, std::span<const std::uint8_t> bytes) const
{
    while (!bytes.empty()) {
        const ssize_t count = pwrite(m_number, bytes.data(), bytes.size(), position);
        if (count >= 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(count));
            position += count;
        } else if (errno != EINTR) {
            Fail(errno, m_path);
        }
    }
}

void Descriptor::Check(int result) const
{
    if (result < 0) {
        Fail(errno, m_path);
    }
}

void Descriptor::Close()
{
    const int number = std::exchange(m_number, -1);
    if (number >= 0 && close(number) != 0 && errno != EINTR) {
        Fail(errno, m_path);
    }
}

} // namespace quor::posix
