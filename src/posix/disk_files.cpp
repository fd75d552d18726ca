#include "posix/disk_files.h"

#include "base/guard.h"
#include "posix/descriptor.h"
#include "posix/safe_replace.h"
#include "posix/scratch.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace quor {

namespace {

using posix::Descriptor;

// What writes and the close of a file do.
enum class Writing { Direct, Gathered, Lasting };

// Gathered writes are those that follow each other; lasting ones are gathered, and on the disk once it is closed.
class DiskFile final : public OpenFile {
public:
    DiskFile(Descriptor file, Writing writing)
        : m_file(std::move(file)), m_capacity(writing == Writing::Direct ? 0 : gatheredSize),
          m_lasts(writing == Writing::Lasting)
    {
    }
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override
    {
        IgnoreFailure([this] { Flush(); });
    }

    std::int64_t Size() override
    {
        Flush();
        return m_file.Size();
    }

    std::size_t Read(std::int64_t position, std::span<std::uint8_t> bytes) override
    {
        Flush();
        return m_file.Read(position, bytes);
    }

    void Write(std::int64_t position, std::span<const std::uint8_t> bytes) override
    {
        if (position != m_start + static_cast<std::int64_t>(m_size) || bytes.size() > m_capacity - m_size) {
            Flush();
            m_start = position;
        }
        if (bytes.size() > m_capacity) {
            m_file.Write(position, bytes);
            m_start += std::ssize(bytes);
            return;
        }
        if (!m_pending) {
            m_pending = std::make_unique_for_overwrite<std::uint8_t[]>(m_capacity);
        }
        std::copy(bytes.begin(), bytes.end(), m_pending.get() + m_size);
        m_size += bytes.size();
    }

    void Close() override
    {
        Flush();
        if (m_lasts) {
            posix::FlushNew(m_file);
        }
        m_file.Close();
    }

private:
    static constexpr std::size_t gatheredSize = 65'536;

    void Flush()
    {
        if (m_size > 0) {
            m_file.Write(m_start, {m_pending.get(), m_size});
            m_start += static_cast<std::int64_t>(m_size);
            m_size = 0;
        }
    }

    Descriptor m_file;
    std::size_t m_capacity;
    bool m_lasts;
    std::int64_t m_start = 0; // where the pending bytes belong
    std::size_t m_size = 0;   // how many there are
    std::unique_ptr<std::uint8_t[]> m_pending;
};

Descriptor OpenAnew(const std::string& path)
{
    constexpr unsigned all = 0666;
    Descriptor file(path, O_RDWR | O_CREAT, all);
    file.Check(ftruncate(file.Number(), 0));
    return file;
}

} // namespace

bool DiskFiles::FileExists(const std::string& path)
{
    struct stat status {};
    return path.find('\0') == std::string::npos && stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool DiskFiles::IsAbsent(const std::string& path)
{
    struct stat status {};
    if (path.find('\0') != std::string::npos) {
        posix::Fail(EINVAL, path);
    }
    if (lstat(path.c_str(), &status) == 0) {
        return false;
    }
    if (errno != ENOENT) {
        posix::Fail(errno, path);
    }
    const std::string folder = std::filesystem::path(path).parent_path().string();
    if (folder.empty() || folder == path || IsAbsent(folder)) {
        return true;
    }
    if (stat(folder.c_str(), &status) != 0) { // a link whose goal may come back, such as a disk that isn't mounted
        posix::Fail(errno, folder);
    }
    return true;
}

std::unique_ptr<OpenFile> DiskFiles::Open(const std::string& path, OpenMode mode)
{
    constexpr unsigned all = 0666;
    switch (mode) {
    case OpenMode::Read:
        return std::make_unique<DiskFile>(Descriptor(path, O_RDONLY), Writing::Direct);
    case OpenMode::Create:
        return std::make_unique<DiskFile>(OpenAnew(path), Writing::Gathered);
    case OpenMode::Scratch:
        return std::make_unique<DiskFile>(Descriptor(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR),
                                          Writing::Gathered);
    case OpenMode::Append:
        return std::make_unique<DiskFile>(Descriptor(path, O_RDWR | O_CREAT | O_APPEND, all), Writing::Direct);
    }
    posix::Fail(EINVAL, path);
}

std::unique_ptr<OpenFile> DiskFiles::OpenLike(const std::string& path, const std::string& model)
{
    return std::make_unique<DiskFile>(posix::CreateLike(path, model), Writing::Lasting);
}

void DiskFiles::MoveFile(const std::string& from, const std::string& to)
{
    if (from.find('\0') != std::string::npos || to.find('\0') != std::string::npos) {
        posix::Fail(EINVAL, from);
    }
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return;
    }
    // A file system without the exclusive form.
    struct stat status {};
    if (errno == EINVAL && lstat(to.c_str(), &status) != 0 && rename(from.c_str(), to.c_str()) == 0) {
        return;
    }
    posix::Fail(errno, from);
}

void DiskFiles::DeleteFile(const std::string& path)
{
    if (path.find('\0') != std::string::npos) {
        posix::Fail(EINVAL, path);
    }
    if (unlink(path.c_str()) != 0) {
        posix::Fail(errno, path);
    }
}

std::string DiskFiles::TempFolder()
{
    return posix::TempFolder();
}

std::string DiskFiles::SpareFolder()
{
    return posix::SpareFolder();
}

std::string DiskFiles::TempName()
{
    return posix::RandomName();
}

} // namespace quor
