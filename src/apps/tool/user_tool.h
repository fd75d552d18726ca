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

    // The folders are made where they are missing.
    UserTool(const Ports& ports, UserPlace place) : m_ports(ports), m_place(std::move(place)) {}

    // The words behind "user". The exit code: 0, or 2 (with one line on `errors`) if the command could not run; then
    // the file is as it was. Of several processes that change it at the same time each does so on what the one before
    // it has left.
    int Run(std::span<const std::string> words);

private:
    bool RunCommand(std::span<const std::string> words);
    UserList Load();
    void Save(const UserList& users);
    void KeepNote(bool hasUsers);
    void Change(const std::function<void(UserList&)>& change);
    std::string NewHash();
    void Add(const std::string& name, std::span<const std::string> rights);
    void Remove(const std::string& name);
    void List();
    void ChangePassword(const std::string& name);
    void ShowRights(const User& user);
    void ChangeRights(const std::string& name, std::span<const std::string> rights);
    void TellIfLockedOut(const User& user);

    Ports m_ports;
    UserPlace m_place;
};

} // namespace quor
