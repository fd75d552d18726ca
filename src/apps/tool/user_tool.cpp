#include "apps/tool/user_tool.h"

#include "apps/tool/signal_hold.h"
#include "base/guard.h"
#include "platform/files.h"
#include "platform/password_hash.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <ostream>
#include <sys/stat.h>

namespace quor {

namespace {

constexpr std::string_view usage = "usage: quor-view-tool user add NAME [RIGHT...] | user remove NAME | user list | "
                                   "user passwd NAME | user rights NAME [RIGHT...]";
constexpr std::size_t longestPassword = 1024;

struct Refusal {
    std::string reason;
};

std::set<std::int16_t> ReadRights(std::span<const std::string> words)
{
    std::set<std::int16_t> rights;
    for (const std::string& word : words) {
        std::int16_t right = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), right);
        if (error != std::errc() || end != word.data() + word.size() || right < 1) {
            throw Refusal{"a right is a number from 1: " + word};
        }
        rights.insert(right);
    }
    return rights;
}

// New files are their owner's alone while it lives.
class OwnerOnly {
public:
    OwnerOnly() : m_before(umask(S_IRWXG | S_IRWXO)) {}
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;
    ~OwnerOnly() { umask(m_before); }

private:
    mode_t m_before;
};

} // namespace

int UserTool::Run(std::span<const std::string> words)
{
    try {
        if (RunCommand(words)) {
            return 0;
        }
        m_ports.errors << usage << '\n';
    } catch (const Refusal& refusal) {
        m_ports.errors << refusal.reason << '\n';
    } catch (...) {
        m_ports.errors << m_path << ": " << CurrentFailure().Description() << '\n';
    }
    return 2;
}

bool UserTool::RunCommand(std::span<const std::string> words)
{
    const std::string command = words.empty() ? "" : words[0];
    if (command == "add" && words.size() >= 2) {
        Add(words[1], words.subspan(2));
    } else if (command == "rights" && words.size() >= 2) {
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
    return m_ports.files.FileExists(m_path) ? LoadUsers(m_ports.files, m_path) : UserList{};
}

// The whole file in one step; readable by its owner alone, also if it wasn't before.
void UserTool::Save(const UserList& users)
{
    namespace fs = std::filesystem;
    const std::string text = WriteUsers(users);
    const SignalHold hold;
    const OwnerOnly ownerOnly;
    const fs::path folder = fs::path(m_path).parent_path();
    fs::create_directories(folder);
    if (fs::exists(m_path)) {
        fs::permissions(m_path, fs::perms::owner_read | fs::perms::owner_write);
    }
    const std::string scratch = (folder / m_ports.files.TempName()).string();
    const std::unique_ptr<OpenFile> file = m_ports.files.Open(scratch, OpenMode::Scratch);
    try {
        file->Write(0, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
        file->Close();
        m_ports.files.CopyFile(scratch, m_path);
    } catch (...) {
        IgnoreFailure([&] { m_ports.files.DeleteFile(scratch); });
        throw;
    }
    if (!IgnoreFailure([&] { m_ports.files.DeleteFile(scratch); })) {
        m_ports.errors << "the scratch file " << scratch << " stays behind\n";
    }
}

User& UserTool::Find(UserList& users, const std::string& name)
{
    const auto user = std::ranges::find(users, name, &User::name);
    if (user == users.end()) {
        throw Refusal{"there is no user " + name};
    }
    return *user;
}

void UserTool::Add(const std::string& name, std::span<const std::string> rights)
{
    UserList users = Load();
    if (!IsUserName(name)) {
        throw Refusal{"a name has 1 to 64 characters, and no blank at its ends"};
    }
    if (FindUser(users, name) != nullptr) {
        throw Refusal{"there is a user " + name + " already"};
    }
    User user{name, ReadRights(rights), {}};
    users.push_back(std::move(user));
    ChangePassword(users.back());
    Save(users);
}

void UserTool::ChangePassword(User& user)
{
    const std::string password = m_ports.askPassword();
    if (password.empty() || password.size() > longestPassword) {
        throw Refusal{"a password has 1 to 1024 bytes"};
    }
    user.hash = m_ports.hasher.Hash(password);
}

void UserTool::ChangePassword(const std::string& name)
{
    UserList users = Load();
    ChangePassword(Find(users, name));
    Save(users);
}

void UserTool::ChangeRights(const std::string& name, std::span<const std::string> rights)
{
    UserList users = Load();
    Find(users, name).rights = ReadRights(rights);
    Save(users);
}

void UserTool::Remove(const std::string& name)
{
    UserList users = Load();
    Find(users, name);
    std::erase_if(users, [&](const User& user) { return user.name == name; });
    Save(users);
    if (users.empty()) {
        m_ports.out << "no user is left, so nobody can log on; without the file " << m_path
                    << " whoever sits at the desktop is logged on\n";
    }
}

void UserTool::List()
{
    for (const User& user : Load()) {
        m_ports.out << user.name << ':';
        for (const std::int16_t right : user.rights) {
            m_ports.out << ' ' << right;
        }
        m_ports.out << '\n';
    }
}

} // namespace quor
