#pragma once
// The click action of an element: what a click does and where, whether it may run now, and why not.

#include "base/event.h"
#include "binding/data_source.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

// What CmdDataType says.
namespace actions {
inline constexpr std::int32_t none = 0;
inline constexpr std::int32_t commandA = 1;
inline constexpr std::int32_t commandB = 2;
inline constexpr std::int32_t runMacro = 3;
inline constexpr std::int32_t stopMacro = 4;
inline constexpr std::int32_t stopAllMacros = 5;
inline constexpr std::int32_t clearSiteAlarms = 6;
inline constexpr std::int32_t clearUnitAlarms = 7;
inline constexpr std::int32_t clearAllAlarms = 8;
inline constexpr std::int32_t openView = 9;
} // namespace actions

// The element that owns a source and hears it.
class CmdOwner {
public:
    // The caption of the action, and whether it may run, each time that it was worked out.
    virtual void m_ClickAction_LabelData(const std::string& /*strCaption*/) {}
    virtual void m_ClickAction_ToggleEnable(bool /*blnEnable*/) {}

protected:
    ~CmdOwner() = default;
};

class clsCmdDataSource final : public DataSourceOn<clsCmdDataSource> {
public:
    static constexpr std::string_view name = "ClickAction";
    static constexpr std::uint8_t ctrlKey = 2; // in the modifiers of a click

    Property<"CmdDataType", std::int32_t> CmdDataType;
    Property<"CtrlClick", bool> CtrlClick; // needs the Ctrl key

    // Hears the login, too.
    clsCmdDataSource(Live& live, CmdOwner& owner);
    ~clsCmdDataSource();

    // Takes up the state of the server. A failure ends it silently.
    void RefreshData();

    // Runs the action, or says why not. `shift` holds the modifier keys of the click. Failures of the server pass.
    void RunCommand(std::uint8_t shift);

    bool CmdEnabled() const noexcept { return m_enabled; }
    const std::string& LockReason() const noexcept { return m_lockReason; }

    void Fields(FieldWalk& record);

private:
    void m_Srv_ConfigData(const ConfigDataEvent& event) override;
    void m_Srv_Connected(const std::string& netName, std::int32_t status) override;
    void m_Srv_Disconnected(const std::string& netName, std::int32_t reason) override;
    void m_Srv_RemoteLocalChange(const std::string& netName, std::uint8_t unit, bool localOnly) override;
    void m_Login_LogOff();
    void m_Login_LogOn(bool blnSuccess);

    void RaiseLabel(const std::string& caption);
    void UpdateEnable();
    void UpdatePrivilege();
    std::string WorkOutLock() const;
    void Refresh();
    void Run();

    CmdOwner& m_owner;
    bool LabelsKnown = false;
    bool m_enabled = false;
    bool SiteConnected = false;
    bool SiteRemote = false;
    bool UserAllowed = false;
    std::string m_lockReason;
    Subscription m_logOff;
    Subscription m_logOn;
};

} // namespace quor
