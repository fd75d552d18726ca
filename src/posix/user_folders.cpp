#include "posix/user_folders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace quor {

namespace {

// Empty if the variable names no absolute path.
std::string FolderNamed(const char* variable)
{
    const char* named = std::getenv(variable);
    return named != nullptr && named[0] == '/' ? named : std::string();
}

std::string Home()
{
    const std::string named = FolderNamed("HOME");
    const passwd* user = named.empty() ? getpwuid(getuid()) : nullptr;
    return user == nullptr ? named : user->pw_dir;
}

std::string OwnFolder(const char* variable, const char* usual)
{
    std::string base = FolderNamed(variable);
    if (base.empty()) {
        base = Home() + usual;
    }
    return base + "/quor";
}

} // namespace

std::string ConfigFolder()
{
    return OwnFolder("XDG_CONFIG_HOME", "/.config");
}

std::string StateFolder()
{
    return OwnFolder("XDG_STATE_HOME", "/.local/state");
}

std::string DataFolder()
{
    return OwnFolder("XDG_DATA_HOME", "/.local/share");
}

} // namespace quor
