#include "posix/scratch.h"

#include "base/guard.h"
#include "posix/descriptor.h"
#include "posix/user_folders.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string_view>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quor::posix {

namespace {

constexpr std::size_t randomBytes = 16;
constexpr std::string_view namePrefix = "quor";
constexpr std::string_view nameSuffix = ".tmp";
constexpr std::string_view digits = "0123456789abcdef";

// Whether it is a name that RandomName gives, hidden or not.
bool IsScratchName(std::string_view name)
{
    name.remove_prefix(name.starts_with('.') ? 1 : 0);
    return name.size() == namePrefix.size() + 2 * randomBytes + nameSuffix.size() && name.starts_with(namePrefix) &&
           name.ends_with(nameSuffix) &&
           name.find_first_not_of(digits, namePrefix.size()) == name.size() - nameSuffix.size();
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

std::string TempFolder()
{
    const char* named = std::getenv("TMPDIR");
    std::string folder = named == nullptr ? "" : named;
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    return folder.empty() ? "/tmp" : folder;
}

std::string SpareFolder()
{
    std::string folder = StateFolder();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return error ? std::string() : folder;
}

void SweepLeftOvers(const std::string& folder) noexcept
{
    constexpr std::time_t oldAge = 86'400; // seconds; whoever writes a scratch file for that long isn't at it any more
    IgnoreFailure([&] {
        for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(folder)) {
            const std::string& path = entry.path().native();
            struct stat status {};
            if (IsScratchName(entry.path().filename().native()) && lstat(path.c_str(), &status) == 0 &&
                S_ISREG(status.st_mode) && status.st_uid == geteuid() &&
                std::time(nullptr) - status.st_mtime > oldAge) {
                unlink(path.c_str());
            }
        }
    });
}

} // namespace quor::posix
