#pragma once
// The splash: checks the logon and the right to edit views, and opens the main form.

#include "base/event.h"
#include "editor/editor_ports.h"
#include "forms/form.h"

#include <functional>
#include <memory>
#include <vector>

namespace quor {

class Timer;

class frmSplash final : public Form {
public:
    // `openMain` loads and shows the main form.
    frmSplash(const EditorPorts& ports, std::function<void()> openMain);
    ~frmSplash() override;

private:
    void Form_Load() override;
    void tmrSplash_Timer();
    void tmrAbort_Timer();
    void m_Login_LogOn(bool success);
    void OpenMainOrRefuse();
    void StopListening();

    EditorPorts m_ports;
    std::function<void()> m_openMain;
    std::unique_ptr<Timer> tmrSplash;
    std::unique_ptr<Timer> tmrAbort;
    Label& lblSplash;
    std::vector<Subscription> m_subscriptions;
    Subscription m_onLogOn;
};

} // namespace quor
