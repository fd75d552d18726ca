#include "posix/safe_replace.h"

#include "base/failure.h"
#include "posix/attributes.h"
#include "posix/disk_files.h"
#include "posix/scratch.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>
#include <vector>

namespace quor::posix {

namespace {

constexpr int newFile = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
constexpr unsigned ownerOnly = S_IRUSR | S_IWUSR;

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

// The file that is to be replaced, if it is there.
struct Target {
    explicit Target(const std::string& path)
    {
        if (stat(path.c_str(), &status) != 0) {
            if (errno != ENOENT) {
                Fail(errno, path);
            }
            return;
        }
        exists = true;
        if (!S_ISREG(status.st_mode)) {
            throw Failure(failures::pathFileAccess, "This is no regular file.");
        }
        // A privileged user may write all, but a file that nobody may write is meant to stay.
        constexpr mode_t anyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
        if ((status.st_mode & anyWrite) == 0 || faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
            Fail(EACCES, path);
        }
    }

    struct stat status {};
    bool exists = false;
};

// A new file that goes again unless it is kept.
class NewFile {
public:
    explicit NewFile(const std::string& path, unsigned mode = ownerOnly) : m_file(path, newFile, mode) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (!m_isKept) {
            unlink(m_path.c_str());
        }
    }

    Descriptor& File() noexcept { return m_file; }
    const std::string& Path() const noexcept { return m_path; }
    void Keep() noexcept { m_isKept = true; }

private:
    Descriptor m_file;
    std::string m_path = m_file.Path();
    bool m_isKept = false;
};

// Makes a change of name last. The file stands already, so a file system that can't do it is no failure.
void FlushFolderOf(const std::string& path)
{
    const int folder = open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

void CopyBytes(const Descriptor& from, const Descriptor& to)
{
    constexpr std::size_t pieceSize = 1U << 18U;
    std::vector<std::uint8_t> piece(pieceSize);
    std::int64_t position = 0;
    for (std::size_t count = pieceSize; count == pieceSize; position += static_cast<std::int64_t>(count)) {
        count = from.Read(position, piece);
        to.Write(position, std::span(piece).first(count));
    }
}

void ReplaceByName(const Descriptor& source, const std::string& path, const Target& target)
{
    constexpr unsigned all = 0666;
    NewFile successor(FolderOf(path) + "." + RandomName(), target.exists ? ownerOnly : all);
    CopyBytes(source, successor.File());
    if (target.exists) {
        TakeOverAttributes(path, target.status, successor.File());
    }
    successor.File().Check(fsync(successor.File().Number()));
    successor.File().Close();
    successor.File().Check(rename(successor.Path().c_str(), path.c_str()));
    successor.Keep();
    FlushFolderOf(path);
}

// The bytes of the target, flushed to a file of their own in the folder.
std::unique_ptr<NewFile> OldBytes(const Descriptor& target, const std::string& folder)
{
    constexpr std::size_t longestName = 200; // of the 255 that a name may have
    const std::string& path = target.Path();
    std::string random = RandomName();
    random.resize(random.rfind('.'));
    auto old = std::make_unique<NewFile>(folder + '/' + path.substr(path.rfind('/') + 1).substr(0, longestName) + '.' +
                                         random + ".old");
    CopyBytes(target, old->File());
    FlushNew(old->File());
    return old;
}

std::unique_ptr<NewFile> OldBytes(const Descriptor& target)
{
    try {
        return OldBytes(target, TempFolder());
    } catch (const Failure&) {
        const std::string spare = SpareFolder();
        if (spare.empty()) {
            throw;
        }
        return OldBytes(target, spare);
    }
}

void Overwrite(const Descriptor& target, const Descriptor& source)
{
    CopyBytes(source, target);
    target.Check(ftruncate(target.Number(), source.Size()));
    target.Check(fsync(target.Number()));
}

void WriteInPlace(const Descriptor& source, const std::string& path)
{
    const Descriptor target(path, O_RDWR);
    const std::unique_ptr<NewFile> old = OldBytes(target);
    try {
        Overwrite(target, source);
    } catch (const Failure& failure) {
        try {
            Overwrite(target, old->File());
        } catch (const Failure&) {
            old->Keep();
            throw Failure(failure.Number(), failure.Description() + " The old file is kept as " + old->Path() + ".");
        }
        throw;
    }
}

// Whether the folder's links are the system's words for files that some process has open: they name no place.
bool IsOfProcesses(const std::string& folder)
{
    constexpr auto processes = 0x9FA0; // as the system tells file systems apart
    struct statfs status {};
    return statfs(folder.c_str(), &status) == 0 && status.f_type == processes;
}

} // namespace

Descriptor CreateLike(const std::string& path, const std::string& model)
{
    struct stat status {};
    if (stat(model.c_str(), &status) != 0) {
        Fail(errno, model);
    }
    NewFile file(path);
    TakeOverAttributes(model, status, file.File());
    file.Keep();
    return std::move(file.File());
}

void FlushNew(const Descriptor& file)
{
    file.Check(fsync(file.Number()));
    FlushFolderOf(file.Path());
}

} // namespace quor::posix

namespace quor {

using namespace posix;

std::string DiskFiles::FollowLinks(const std::string& link)
{
    std::string path = link;
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks; ++links) {
        std::array<char, PATH_MAX> buffer;
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) {
            if (errno == EINVAL || errno == ENOENT) { // no link, or nothing as yet
                return path;
            }
            Fail(errno, path);
        }
        if (IsOfProcesses(FolderOf(path))) {
            throw Failure(failures::pathFileAccess, "This is no regular file.");
        }
        const std::string_view target(buffer.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? std::string() : FolderOf(path);
        path += target;
    }
    Fail(ELOOP, path);
}

void DiskFiles::CopyFile(const std::string& from, const std::string& to)
{
    const Descriptor source(from, O_RDONLY);
    if (to.find('\0') != std::string::npos) {
        Fail(EINVAL, to);
    }
    const std::string path = FollowLinks(to);
    const Target target(path);
    try {
        ReplaceByName(source, path, target);
    } catch (const Failure& failure) {
        if (!target.exists || failure.Number() != failures::permissionDenied) {
            throw;
        }
        WriteInPlace(source, path);
    }
    SweepLeftOvers(FolderOf(path));
    SweepLeftOvers(FolderOf(from));
}

void DiskFiles::CopyScratch(const std::string& from, const std::string& to)
{
    if (link(from.c_str(), to.c_str()) == 0) {
        return;
    }
    const Descriptor source(from, O_RDONLY);
    NewFile copy(to);
    CopyBytes(source, copy.File());
    copy.File().Close();
    copy.Keep();
}

} // namespace quor
