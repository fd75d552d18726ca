#include "posix/attributes.h"

#include "posix/descriptor.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace quor::posix {

namespace {

using Bytes = std::vector<char>;

constexpr const char* accessList = "system.posix_acl_access";
constexpr mode_t everyone = S_IRWXU | S_IRWXG | S_IRWXO;

// Nothing where there is none; errno says why.
std::optional<Bytes> Attribute(const std::string& path, const char* name)
{
    const ssize_t size = getxattr(path.c_str(), name, nullptr, 0);
    if (size < 0) {
        return std::nullopt;
    }
    Bytes bytes(static_cast<std::size_t>(size));
    const ssize_t read = getxattr(path.c_str(), name, bytes.data(), bytes.size());
    if (read < 0) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(read));
    return bytes;
}

void CopyUserAttributes(const std::string& from, const Descriptor& to)
{
    const ssize_t size = listxattr(from.c_str(), nullptr, 0);
    Bytes names(size > 0 ? static_cast<std::size_t>(size) : 0);
    const ssize_t read = names.empty() ? 0 : listxattr(from.c_str(), names.data(), names.size());
    std::string_view rest(names.data(), read > 0 ? static_cast<std::size_t>(read) : 0);
    while (!rest.empty()) {
        const std::string name(rest.substr(0, rest.find('\0')));
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        if (!name.starts_with("user.")) {
            continue;
        }
        if (const std::optional<Bytes> value = Attribute(from, name.c_str())) {
            static_cast<void>(fsetxattr(to.Number(), name.c_str(), value->data(), value->size(), 0));
        }
    }
}

// The permissions without an access list that give nobody more than they had with it.
mode_t WithoutList(mode_t mode, const Bytes& list)
{
    constexpr std::size_t headerSize = 4;
    constexpr std::size_t entrySize = 8; // tag, permissions, and the number of a user or group
    constexpr char owner = 1;
    constexpr char user = 2;
    constexpr char group = 8;
    constexpr char other = 32;
    mode_t ofGroup = S_IRWXO;
    mode_t ofOthers = S_IRWXO;
    for (std::size_t at = headerSize; at + entrySize <= list.size(); at += entrySize) {
        const char tag = list[at]; // little-endian, as the permissions; the higher bytes are zero
        const auto permissions = static_cast<unsigned char>(list[at + 2]);
        if (tag != owner && tag != other) {
            ofGroup &= permissions;
        }
        if (tag == user || tag == group) {
            ofOthers &= permissions;
        }
    }
    return mode & (S_IRWXU | ofGroup << 3U | ofOthers);
}

} // namespace

void TakeOverAttributes(const std::string& oldPath, const struct stat& old, const Descriptor& file)
{
    CopyUserAttributes(oldPath, file);
    // Only a privileged user gives a file away; the group may still be one's own.
    const bool hasGroup = fchown(file.Number(), old.st_uid, old.st_gid) == 0 ||
                          fchown(file.Number(), static_cast<uid_t>(-1), old.st_gid) == 0;
    const std::optional<Bytes> list = Attribute(oldPath, accessList);
    const bool mayHaveList = list || (errno != ENODATA && errno != EOPNOTSUPP);
    // One that the folder gives each new file would become wider with the mode.
    static_cast<void>(fremovexattr(file.Number(), accessList));
    if (list && hasGroup && fsetxattr(file.Number(), accessList, list->data(), list->size(), 0) == 0) {
        return; // the mode is part of the list
    }
    mode_t mode = old.st_mode & everyone;
    if (mayHaveList) {
        mode = list ? WithoutList(mode, *list) : mode & S_IRWXU;
    }
    if (!hasGroup) { // another group than the one that was trusted
        mode &= S_IRWXU | S_IRWXO | (mode & S_IRWXO) << 3U;
    }
    file.Check(fchmod(file.Number(), mode));
}

} // namespace quor::posix
