#include "login/user_login.h"

#include "base/guard.h"
#include "base/values.h"
#include "login/frm_log_on.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/forms.h"
#include "platform/password_hash.h"

namespace quor {

namespace {
constexpr int answerDelay = 10; // milliseconds
}

UserLogin::UserLogin(const Ports& ports, UserPlace place)
    : m_ports(ports), m_place(std::move(place)), tmrAnswer(ports.timers.Make())
{
    tmrAnswer->SetInterval(answerDelay);
    m_onAnswer = tmrAnswer->Fired.Subscribe([this] {
        tmrAnswer->SetEnabled(false);
        LogOn.Raise(m_answer);
    });
}

UserLogin::~UserLogin() = default;

bool UserLogin::IsOpen()
{
    if (!m_isOpen) {
        m_isOpen = false;
        IgnoreFailure([this] { m_isOpen = HasNoUsers(m_ports.files, m_place); }); // ShowLogOn tells of it
    }
    return *m_isOpen;
}

bool UserLogin::IsLoggedOn()
{
    return IsOpen() || m_user.has_value();
}

bool UserLogin::HasPrivilege(std::int16_t right)
{
    return IsOpen() || (m_user && m_user->rights.contains(right));
}

void UserLogin::AnswerLater(bool success)
{
    m_answer = success;
    tmrAnswer->SetEnabled(true);
}

void UserLogin::ShowLogOn(bool /*show*/)
{
    if (IsOpen()) {
        AnswerLater(true);
        return;
    }
    UserList users;
    try {
        HasNoUsers(m_ports.files, m_place);
        users = LoadUsers(m_ports.files, m_place.File());
    } catch (...) {
        m_ports.boxes.Show("The users of the file \"" + m_place.File() + "\" cannot be read, so nobody can log on. " +
                               CurrentFailure().Description(),
                           std::string(appTitle), BoxButtons::Ok);
        AnswerLater(false);
        return;
    }
    auto form = std::make_unique<frmLogOn>(
        m_ports.timers, m_failures,
        [this, users = std::move(users)](const std::string& name, const std::string& password) {
            return Check(users, name, password);
        });
    m_answer = false;
    m_onUnloaded = form->Unloaded.Subscribe([this] { AnswerLater(m_answer); });
    m_ports.forms.ShowModal(std::move(form));
}

// A name that nobody has costs the same as a wrong password: the time tells nothing.
bool UserLogin::Check(const UserList& users, const std::string& name, const std::string& password)
{
    const User* user = FindUser(users, name);
    if (users.empty()) {
        return false;
    }
    const bool isRight = m_ports.hasher.Verify(user == nullptr ? users.front().hash : user->hash, password);
    if (user == nullptr || !isRight) {
        return false;
    }
    m_user = *user;
    m_answer = true;
    return true;
}

} // namespace quor
