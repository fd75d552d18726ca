#include "posix/safe_replace.h"

#include "base/failure.h"
#include "posix/descriptor.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace quor::posix {

namespace {

constexpr std::size_t randomBytes = 16;
constexpr std::string_view namePrefix = "quor";
constexpr std::string_view nameSuffix = ".tmp";
constexpr std::string_view digits = "0123456789abcdef";

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

// The path that the last link of a chain of links names; it need not exist.
std::string FollowLinks(std::string path)
{
    constexpr int mostLinks = 40;
    for (int links = 0; links < mostLinks; ++links) {
        std::array<char, PATH_MAX> buffer;
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) {
            return path;
        }
        const std::string target(buffer.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : FolderOf(path) + target;
    }
    Fail(ELOOP, path);
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

// A file beside another that goes again unless it takes the other's place.
class Successor {
public:
    Successor(const std::string& path, const Target& target)
        : m_path(path), m_file(FolderOf(path) + "." + RandomName(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW,
                               target.exists ? S_IRUSR | S_IWUSR : 0666)
    {
    }
    Successor(const Successor&) = delete;
    Successor& operator=(const Successor&) = delete;
    ~Successor()
    {
        if (!m_isPlaced) {
            unlink(m_file.Path().c_str());
        }
    }

    const Descriptor& File() const noexcept { return m_file; }

    void TakeOver(const struct stat& status)
    {
        if (fchown(m_file.Number(), status.st_uid, status.st_gid) != 0) {
            // Only a privileged user gives a file away; the group may still be one's own.
            static_cast<void>(fchown(m_file.Number(), static_cast<uid_t>(-1), status.st_gid) == 0);
        }
        m_file.Check(fchmod(m_file.Number(), status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)));
    }

    void TakePlace()
    {
        m_file.Check(fsync(m_file.Number()));
        m_file.Close();
        m_file.Check(rename(m_file.Path().c_str(), m_path.c_str()));
        m_isPlaced = true;
        FlushFolder();
    }

private:
    // Makes the change of name last. The new file stands already, so a file system that can't do it is no failure.
    void FlushFolder() const
    {
        const int folder = open(FolderOf(m_path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder >= 0) {
            fsync(folder);
            close(folder);
        }
    }

    std::string m_path;
    Descriptor m_file;
    bool m_isPlaced = false;
};

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

} // namespace

std::string RandomName()
{
    std::array<unsigned char, randomBytes> random;
    if (getrandom(random.data(), random.size(), 0) != static_cast<ssize_t>(random.size())) {
        Fail(EIO, {});
    }
    std::string name(namePrefix);
    for (const unsigned char byte : random) {
        name += digits[byte >> 4U];
        name += digits[byte & 15U];
    }
    return name.append(nameSuffix);
}

bool HasRandomName(const std::string& path)
{
    std::string_view name = path;
    name.remove_prefix(path.rfind('/') + 1);
    return name.size() == namePrefix.size() + 2 * randomBytes + nameSuffix.size() && name.starts_with(namePrefix) &&
           name.ends_with(nameSuffix) &&
           name.find_first_not_of(digits, namePrefix.size()) == name.size() - nameSuffix.size();
}

bool LinkScratch(const std::string& from, const std::string& to) noexcept
{
    return link(from.c_str(), to.c_str()) == 0;
}

void ReplaceFile(const std::string& from, const std::string& to)
{
    const Descriptor source(from, O_RDONLY);
    if (to.find('\0') != std::string::npos) {
        Fail(EINVAL, to);
    }
    const std::string path = FollowLinks(to);
    const Target target(path);
    Successor successor(path, target);
    CopyBytes(source, successor.File());
    if (target.exists) {
        successor.TakeOver(target.status);
    }
    successor.TakePlace();
}

} // namespace quor::posix
