#include "binding/cmd_data_source.h"

#include "base/narrow.h"
#include "binding/sites.h"
#include "format/view_title.h"
#include "platform/boxes.h"
#include "platform/login.h"

namespace quor {

namespace {

// The right that an action needs, 0 for none.
std::int16_t RightOf(std::int32_t action)
{
    switch (action) {
    case actions::commandA:
    case actions::commandB:
        return rights::issueCommands;
    case actions::runMacro:
    case actions::stopMacro:
    case actions::stopAllMacros:
        return rights::runMacros;
    case actions::clearSiteAlarms:
    case actions::clearUnitAlarms:
    case actions::clearAllAlarms:
        return rights::clearAlarms;
    default:
        return 0;
    }
}

bool NeedsRemote(std::int32_t action)
{
    return action >= actions::commandA && action <= actions::stopAllMacros;
}

} // namespace

clsCmdDataSource::clsCmdDataSource(Live& live, CmdOwner& owner) : DataSourceOn(live), m_owner(owner)
{
    Follow();
    if (!live.DesignMode && live.Login != nullptr) {
        m_logOff = live.Login->LogOff.Subscribe(Quietly([this] { m_Login_LogOff(); }));
        m_logOn = live.Login->LogOn.Subscribe(Quietly([this](bool success) { m_Login_LogOn(success); }));
    }
}

clsCmdDataSource::~clsCmdDataSource() = default;

void clsCmdDataSource::Fields(FieldWalk& record)
{
    record.AsByte(CmdDataType);
    record(Unit, Channel, CtrlClick, Site);
}

void clsCmdDataSource::UpdateEnable()
{
    m_lockReason = WorkOutLock();
    m_enabled = CmdDataType() != actions::none && m_lockReason.empty();
    m_live.Tracer->ToggleEnable(*this, m_enabled);
    IgnoreFailure([&] { m_owner.m_ClickAction_ToggleEnable(m_enabled); });
}

void clsCmdDataSource::RaiseLabel(const std::string& caption)
{
    m_live.Tracer->LabelData(*this, caption);
    IgnoreFailure([&] { m_owner.m_ClickAction_LabelData(caption); });
}

std::string clsCmdDataSource::WorkOutLock() const
{
    const std::int32_t action = CmdDataType();
    if (action == actions::none || action == actions::openView) {
        return {};
    }
    const bool needsSite = action >= actions::commandA && action <= actions::clearAllAlarms;
    if (needsSite && !SiteConnected) {
        return "The site/unit is not connected.";
    }
    if (NeedsRemote(action) && !SiteRemote) {
        return "The site is in local control mode.";
    }
    return UserAllowed ? "" : "You do not have sufficient user privileges to run this command.";
}

void clsCmdDataSource::UpdatePrivilege()
{
    const std::int32_t action = CmdDataType();
    if (action == actions::none || action == actions::openView) {
        UserAllowed = true;
    } else if (const std::int16_t right = RightOf(action)) {
        UserAllowed = m_live.TheLogin().HasPrivilege(right);
    }
}

void clsCmdDataSource::RefreshData()
{
    IgnoreFailure([&] { Refresh(); });
}

void clsCmdDataSource::Refresh()
{
    SiteConnected = true;
    UpdatePrivilege();
    SiteRemote = true;
    switch (CmdDataType()) {
    case actions::commandA:
    case actions::commandB:
    case actions::runMacro:
    case actions::stopMacro:
        if (!LabelsKnown) {
            TheUnit().RequestConfig();
        }
        break;
    case actions::stopAllMacros:
        SiteRemote = !TheUnit().LocalMode();
        RaiseLabel("Stop Macros on " + UnitCaption(m_live.Server, Site(), Unit()));
        break;
    case actions::clearSiteAlarms:
        RaiseLabel("Clear Alarms on " + Site());
        break;
    case actions::clearUnitAlarms:
        RaiseLabel("Clear Alarms on " + UnitCaption(m_live.Server, Site(), Unit()));
        break;
    case actions::clearAllAlarms:
        RaiseLabel("Clear All Alarms");
        break;
    case actions::openView: {
        const std::string title = m_live.ViewFiles == nullptr ? "" : ReadViewTitle(*m_live.ViewFiles, Site()).name;
        RaiseLabel(title.empty() ? "ERROR - Invalid File" : "Open " + title);
        break;
    }
    default:
        break;
    }
    UpdateEnable();
}

void clsCmdDataSource::m_Srv_ConfigData(const ConfigDataEvent& event)
{
    if (CmdDataType() < actions::commandA || CmdDataType() > actions::stopMacro) {
        return;
    }
    LabelsKnown = true; // also where the label is missing: the unit isn't asked again
    const std::int32_t index = Channel() - 1;
    switch (CmdDataType()) {
    case actions::commandA:
        return RaiseLabel(event.CmdLabels.FromLower(index, 0));
    case actions::commandB:
        return RaiseLabel(event.CmdLabels.FromLower(index, 1));
    case actions::runMacro:
        return RaiseLabel("Run: " + event.MacroNames.FromLower(index, 0));
    default:
        return RaiseLabel("Stop: " + event.MacroNames.FromLower(index, 0));
    }
}

// The unit is not compared in these three: any unit of the site moves every action of the site.

void clsCmdDataSource::m_Srv_Connected(const std::string& /*netName*/, std::int32_t status)
{
    if (IsConnectedStatus(status)) {
        SiteConnected = true;
        UpdateEnable();
    }
}

void clsCmdDataSource::m_Srv_Disconnected(const std::string& /*netName*/, std::int32_t /*reason*/)
{
    SiteConnected = false;
    UpdateEnable();
}

void clsCmdDataSource::m_Srv_RemoteLocalChange(const std::string& /*netName*/, std::uint8_t /*unit*/, bool localOnly)
{
    SiteRemote = !localOnly;
    UpdateEnable();
}

void clsCmdDataSource::m_Login_LogOff()
{
    UserAllowed = false;
    UpdateEnable();
}

void clsCmdDataSource::m_Login_LogOn(bool blnSuccess)
{
    if (blnSuccess) {
        UpdatePrivilege();
    } else {
        UserAllowed = false;
    }
    UpdateEnable();
}

void clsCmdDataSource::RunCommand(std::uint8_t shift)
{
    const auto say = [this](const std::string& text) {
        if (m_live.Boxes != nullptr) {
            m_live.Boxes->Show(text, "", BoxButtons::Ok);
        }
    };
    if (CtrlClick() && (shift & ctrlKey) == 0) {
        say("Press and hold the CTRL key and click the left mouse button to unlock this command.");
    } else if (!m_enabled) {
        if (CmdDataType() != actions::none) {
            say("This command is locked. " + m_lockReason);
        }
    } else {
        Run();
    }
}

void clsCmdDataSource::Run()
{
    const auto clear = [](TeskUnit& unit) { unit.ClearAlarms(); };
    switch (CmdDataType()) {
    case actions::commandA:
        return TheUnit().Commands().Item(Narrow<std::uint8_t>(Channel() - 1)).IssueA();
    case actions::commandB:
        return TheUnit().Commands().Item(Narrow<std::uint8_t>(Channel() - 1)).IssueB();
    case actions::runMacro:
        return TheUnit().RunMacro(Channel());
    case actions::stopMacro:
        return TheUnit().StopMacro(Channel());
    case actions::stopAllMacros:
        return TheUnit().StopAllMacros();
    case actions::clearSiteAlarms:
        return TheSite().Units().ForEach(clear);
    case actions::clearUnitAlarms:
        return TheUnit().ClearAlarms();
    case actions::clearAllAlarms:
        return m_live.TheServer().Sites().ForEach([&](TeskSite& site) { site.Units().ForEach(clear); });
    case actions::openView:
        if (m_live.LoadCustomView) {
            m_live.LoadCustomView(Site());
        }
        return;
    default:
        return;
    }
}

} // namespace quor
