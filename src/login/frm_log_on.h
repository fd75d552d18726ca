#pragma once
// The logon dialog: a name and a password, asked for until they are right or the user gives up.

#include "forms/fields.h"
#include "forms/form.h"
#include "platform/timer.h"

#include <functional>
#include <string>

namespace quor {

class frmLogOn final : public Form {
public:
    // Whether the two are those of a user.
    using Check = std::function<bool(const std::string& name, const std::string& password)>;

    // The failures so far, of this form and those before it, are the caller's: they make the pause grow.
    frmLogOn(Timers& timers, int& failures, Check check);

    // Milliseconds for which no other attempt is taken.
    static int PauseAfter(int failures) noexcept;

    Label& lblUser = Make<Label>("lblUser", "User:", LabelRole::Caption);
    TextBox& txtUser = Make<TextBox>("txtUser");
    Label& lblPassword = Make<Label>("lblPassword", "Password:", LabelRole::Caption);
    TextBox& txtPassword = Make<TextBox>("txtPassword");
    Label& lblMessage = Make<Label>("lblMessage", "", LabelRole::Text);
    Button& cmdOK = Make<Button>("cmdOK", "OK");
    Button& cmdCancel = Make<Button>("cmdCancel", "Cancel");

private:
    void Place();
    void cmdOK_Click();
    // Says how long it lasts, behind what the user is told else.
    void BeginPause(std::string said);
    void EndPause();

    int& m_failures;
    Check m_check;
    std::string m_said; // what stays when the pause is over
    std::unique_ptr<Timer> tmrPause;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
