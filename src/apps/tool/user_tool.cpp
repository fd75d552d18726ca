#include "apps/tool/user_tool.h"

#include "apps/tool/refusal.h"
#include "apps/tool/signal_hold.h"
#include "base/guard.h"
#include "base/text.h"
#include "platform/login.h"
#include "platform/password_hash.h"
#include "platform/whole_file.h"
#include "posix/file_lock.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <sys/stat.h>

namespace quor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view usage = "usage: quor-view-tool user add NAME [RIGHT...] | user remove NAME | user list | "
                                   "user passwd NAME | user rights NAME [RIGHT... | none]";
constexpr std::size_t longestPassword = 1024;

std::set<std::int16_t> ReadRights(std::span<const std::string> words)
{
    std::set<std::int16_t> rights;
    for (const std::string& word : words) {
        const auto right = ReadRight(word);
        if (!right) {
            throw Refusal{"a right is a number from 1: " + word};
        }
        rights.insert(*right);
    }
    return rights;
}

User& Find(UserList& users, const std::string& name)
{
    const auto user = std::ranges::find(users, name, &User::name);
    if (user == users.end()) {
        throw Refusal{"there is no user " + name};
    }
    return *user;
}

void MustBeFree(const UserList& users, const std::string& name)
{
    if (FindUser(users, name) != nullptr) {
        throw Refusal{"there is a user " + name + " already"};
    }
}

// New files and folders are their owner's alone while it lives.
class OwnerOnly {
public:
    OwnerOnly() : m_before(umask(S_IRWXG | S_IRWXO)) {}
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;
    ~OwnerOnly() { umask(m_before); }

private:
    mode_t m_before;
};

// Beside the file itself, to which several links may lead.
std::string LockFor(const std::string& path)
{
    std::error_code error;
    const fs::path file = fs::weakly_canonical(path, error);
    return (error ? path : file.string()) + ".lock";
}

} // namespace

int UserTool::Run(std::span<const std::string> words)
{
    try {
        if (RunCommand(words)) {
            return 0;
        }
        m_ports.errors << usage << '\n';
    } catch (const Refusal& refusal) {
        m_ports.errors << Escaped(refusal.reason) << '\n';
    } catch (const fs::filesystem_error& error) {
        m_ports.errors << Escaped(m_place.File() + ": " + error.code().message()) << '\n';
    } catch (...) {
        m_ports.errors << Escaped(m_place.File() + ": " + CurrentFailure().Description()) << '\n';
    }
    return 2;
}

bool UserTool::RunCommand(std::span<const std::string> words)
{
    const std::string command = words.empty() ? "" : words[0];
    if (command == "add" && words.size() >= 2) {
        Add(words[1], words.subspan(2));
    } else if (command == "rights" && words.size() == 2) {
        UserList users = Load();
        ShowRights(Find(users, words[1]));
    } else if (command == "rights" && words.size() > 2) {
        ChangeRights(words[1], words.subspan(2));
    } else if (command == "remove" && words.size() == 2) {
        Remove(words[1]);
    } else if (command == "passwd" && words.size() == 2) {
        ChangePassword(words[1]);
    } else if (command == "list" && words.size() == 1) {
        List();
    } else {
        return false;
    }
    return true;
}

UserList UserTool::Load()
{
    return HasNoUsers(m_ports.files, m_place) ? UserList{} : LoadUsers(m_ports.files, m_place.File());
}

// The whole file in one step; readable by its owner alone, also if it wasn't before.
void UserTool::Save(const UserList& users)
{
    const SignalHold hold;
    if (fs::exists(m_place.File())) {
        fs::permissions(m_place.File(), fs::perms::owner_read | fs::perms::owner_write);
    }
    if (const std::string words = WriteWhole(m_ports.files, m_place.File(), WriteUsers(users)); !words.empty()) {
        m_ports.errors << Escaped(words) << '\n';
    }
}

// Without the note the users are as safe as their folder, so a note that can't be kept is no failure of the command.
void UserTool::KeepNote(bool hasUsers)
{
    const std::string note = m_place.Note();
    try {
        const bool isKept = !m_ports.files.IsAbsent(note);
        if (isKept && !hasUsers) {
            m_ports.files.DeleteFile(note);
        } else if (!isKept && hasUsers) {
            fs::create_directories(m_place.state);
            m_ports.files.Open(note, OpenMode::Create)->Close();
        }
    } catch (...) {
        m_ports.errors << Escaped("done, but the file " + note + " cannot be " + (hasUsers ? "made" : "deleted"))
                       << '\n';
    }
}

void UserTool::Change(const std::function<void(UserList&)>& change)
{
    UserList trial =
        Load(); // before a folder is made: what is refused leaves none behind, nor in the place of one gone
    change(trial);
    const OwnerOnly ownerOnly;
    fs::create_directories(m_place.config);
    const posix::FileLock lock(LockFor(m_place.File()));
    UserList users = Load();
    change(users);
    Save(users);
    KeepNote(!users.empty());
}

std::string UserTool::NewHash()
{
    const std::string password = m_ports.askPassword();
    if (password.empty() || password.size() > longestPassword) {
        throw Refusal{"a password has 1 to 1024 bytes"};
    }
    return m_ports.hasher.Hash(password);
}

// What can be refused is refused before somebody types a password, but all is looked at once more after it: that may
// take minutes, in which others change the file.
void UserTool::Add(const std::string& name, std::span<const std::string> rights)
{
    if (!IsUserName(name)) {
        throw Refusal{"a name has 1 to 64 characters that can be shown, and no blank at its ends"};
    }
    MustBeFree(Load(), name);
    User user{name, ReadRights(rights), {}};
    user.hash = NewHash();
    Change([&](UserList& users) {
        MustBeFree(users, name);
        users.push_back(user);
    });
    TellIfLockedOut(user);
}

void UserTool::ChangePassword(const std::string& name)
{
    UserList before = Load();
    Find(before, name);
    const std::string hash = NewHash();
    Change([&](UserList& users) { Find(users, name).hash = hash; });
}

void UserTool::ShowRights(const User& user)
{
    m_ports.out << Escaped(user.name) << ':';
    for (const std::int16_t right : user.rights) {
        m_ports.out << ' ' << right;
    }
    m_ports.out << '\n';
}

void UserTool::ChangeRights(const std::string& name, std::span<const std::string> words)
{
    const bool isNone = words.size() == 1 && words.front() == "none";
    const User user{name, isNone ? std::set<std::int16_t>() : ReadRights(words), {}};
    Change([&](UserList& users) { Find(users, name).rights = user.rights; });
    TellIfLockedOut(user);
}

void UserTool::TellIfLockedOut(const User& user)
{
    if (!user.rights.contains(rights::editViews)) {
        m_ports.out << Escaped(user.name) << " can't open the editor, which takes the right " << rights::editViews
                    << '\n';
    }
}

void UserTool::Remove(const std::string& name)
{
    bool isLast = false;
    Change([&](UserList& users) {
        Find(users, name);
        std::erase_if(users, [&](const User& user) { return user.name == name; });
        isLast = users.empty();
    });
    if (isLast) {
        m_ports.out << "no user is left, so nobody can log on; without the file " << Escaped(m_place.File())
                    << " whoever sits at the desktop is logged on\n";
    }
}

void UserTool::List()
{
    for (const User& user : Load()) {
        ShowRights(user);
    }
}

} // namespace quor
