#pragma once
// The commands of quor-view-tool that keep the file of users: user add, remove, list, passwd and rights.

#include "login/user_list.h"

#include <functional>
#include <iosfwd>
#include <span>
#include <string>

namespace quor {

class Files;
class PasswordHasher;

class UserTool {
public:
    struct Ports {
        Files& files;
        PasswordHasher& hasher;
        std::function<std::string()> askPassword; // for a new one; fails where there is none
        std::ostream& out;
        std::ostream& errors;
    };

    // The path is that of the file; its folder is made where it is missing.
    UserTool(const Ports& ports, std::string path) : m_ports(ports), m_path(std::move(path)) {}

    // The words behind "user". The exit code: 0, or 2 (with one line on `errors`) if the command could not run; then
    // the file is as it was.
    int Run(std::span<const std::string> words);

private:
    bool RunCommand(std::span<const std::string> words);
    UserList Load();
    void Save(const UserList& users);
    User& Find(UserList& users, const std::string& name);
    void Add(const std::string& name, std::span<const std::string> rights);
    void Remove(const std::string& name);
    void List();
    void ChangePassword(User& user);
    void ChangePassword(const std::string& name);
    void ChangeRights(const std::string& name, std::span<const std::string> rights);

    Ports m_ports;
    std::string m_path;
};

} // namespace quor
