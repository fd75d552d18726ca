#include "qt/ports/picture_file.h"

#include "base/failure.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace quor {

namespace {

// To open a device acts on it, and a pipe's writer would be heard.
const std::string& CheckIsPlain(const std::string& path)
{
    struct stat status {};
    if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        throw Failure(failures::pathFileAccess, "This is no regular file.");
    }
    return path;
}

} // namespace

PictureFile::PictureFile(const std::string& path) : m_descriptor(CheckIsPlain(path), O_RDONLY)
{
    struct stat status {};
    m_descriptor.Check(fstat(m_descriptor.Number(), &status));
    m_mark = {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size};
}

QByteArray PictureFile::Head(std::int64_t length) const
{
    QByteArray bytes(static_cast<qsizetype>(std::min(length, m_mark.length)), '\0');
    const std::size_t count =
        m_descriptor.Read(0, {reinterpret_cast<std::uint8_t*>(bytes.data()), static_cast<std::size_t>(bytes.size())});
    bytes.truncate(static_cast<qsizetype>(count));
    return bytes;
}

} // namespace quor
