#pragma once
// The login that needs nothing outside: users of a file on this machine. If there is surely no such file, whoever sits
// at the desktop is logged on and holds all rights.

#include "login/user_list.h"
#include "platform/login.h"

#include <memory>
#include <optional>
#include <string>

namespace quor {

class Files;
class Forms;
class MessageBoxes;
class PasswordHasher;
class Timer;
class Timers;

class UserLogin final : public QuorLogin {
public:
    struct Ports {
        Files& files;
        Forms& forms;
        Timers& timers;
        MessageBoxes& boxes;
        PasswordHasher& hasher;
    };

    UserLogin(const Ports& ports, UserPlace place);
    ~UserLogin() override;

    // The answer comes when the dialog is gone. A file that tells no users is told to the user, and nobody gets in.
    void ShowLogOn(bool show) override;
    bool IsLoggedOn() override;
    bool HasPrivilege(std::int16_t right) override;

private:
    bool IsOpen(); // there is surely no file of users
    bool Check(const UserList& users, const std::string& name, const std::string& password);
    void AnswerLater(bool success);

    Ports m_ports;
    UserPlace m_place;
    std::optional<bool> m_isOpen;
    std::optional<User> m_user;
    int m_failures = 0;
    bool m_answer = false;            // of the attempt under way
    std::unique_ptr<Timer> tmrAnswer; // leaves the dialog's call stack
    Subscription m_onAnswer;
    Subscription m_onUnloaded;
};

} // namespace quor
