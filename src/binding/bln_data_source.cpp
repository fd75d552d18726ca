#include "binding/bln_data_source.h"

#include "base/text.h"
#include "binding/masks.h"
#include "binding/sites.h"

#include <charconv>
#include <cmath>

namespace quor {

namespace {

// "True" and "False" in any case, or a decimal number without blanks.
bool ToBoolean(const std::string& text)
{
    if (SameText(text, "True")) {
        return true;
    }
    if (SameText(text, "False")) {
        return false;
    }
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
        throw Failure(failures::typeMismatch);
    }
    return number != 0;
}

} // namespace

clsBlnDataSource::clsBlnDataSource(Live& live, BlnOwner& owner) : DataSourceOn(live), m_owner(owner)
{
    Follow();
}

clsBlnDataSource::~clsBlnDataSource() = default;

void clsBlnDataSource::Fields(FieldWalk& record)
{
    record.AsByte(BlnDataType);
    record(Unit, Channel, Site);
}

void clsBlnDataSource::Follow()
{
    if (!m_hears) {
        return;
    }
    switch (BlnDataType()) {
    case watch::anyAlarms:
        m_live.Routes.FollowAll(*m_live.Server, *this);
        break;
    case watch::nothing:
    case watch::primaryPath:
    case watch::backupPath:
    case watch::siteAlarms:
        m_live.Routes.FollowSite(*m_live.Server, *this, Site());
        break;
    default:
        DataSource::Follow();
        break;
    }
}

void clsBlnDataSource::ForceValue(bool value, bool mute)
{
    m_value = value;
    RaiseUpdate(value, mute);
}

void clsBlnDataSource::SetValue(bool value, bool mute)
{
    m_value = value;
    HasData = true;
    RaiseUpdate(value, mute);
}

std::weak_ptr<char> clsBlnDataSource::Life()
{
    if (m_life == nullptr) {
        m_life = std::make_shared<char>();
    }
    return m_life;
}

void clsBlnDataSource::RaiseUpdate(bool value, bool mute)
{
    m_live.Tracer->UpdateBlnData(*this, value, mute);
    m_owner.m_BlnDataSource_UpdateBlnData(value, mute); // last: the owner may end the source
}

bool clsBlnDataSource::RaiseLabel(const std::string& on, const std::string& off)
{
    m_live.Tracer->LabelData(*this, on, off);
    const std::weak_ptr<char> life = Life();
    IgnoreFailure([&] { m_owner.m_BlnDataSource_LabelData(on, off); });
    return !life.expired();
}

void clsBlnDataSource::RefreshData()
{
    if (!IgnoreFailure([&] { Refresh(); })) {
        IgnoreFailure([&] { SetValue(false, true); });
    }
}

void clsBlnDataSource::Refresh()
{
    switch (BlnDataType()) {
    case watch::nothing:
        SetValue(false, false);
        break;
    case watch::primaryPath:
    case watch::backupPath:
        if (RaiseLabel("Connected", "Not Connected")) {
            const bool isOnBackup = TheSite().UsingBackup();
            SetValue(isOnBackup == (BlnDataType() == watch::backupPath), false);
        }
        break;
    case watch::siteAlarms:
        if (RaiseLabel("Alarms Present on " + Site(), "No Alarms Present on " + Site())) {
            SetValue(TheSite().SiteAlarms(), false);
        }
        break;
    case watch::anyAlarms:
        if (RaiseLabel("Alarm(s) Present", "No Alarms Present")) {
            SetValue(m_live.TheServer().AppAlarms(), false);
        }
        break;
    default:
        if (!HasData) {
            TheUnit().RequestConfig();
        }
        break;
    }
}

void clsBlnDataSource::m_Srv_ConfigData(const ConfigDataEvent& event)
{
    if (WatchesLimits()) {
        TakeLimits(event);
    }
    if (!Label(event)) {
        return;
    }
    if (WatchesLimits() && !(LastValue <= NoData)) { // what is no number is a value, too
        SetValue(IsOutside(), false);
    } else if (BlnDataType() == watch::macroRunning) {
        SetValue(ToBoolean(event.MacroNames.FromLower(Channel() - 1, 1)), false);
    }
}

void clsBlnDataSource::TakeLimits(const ConfigDataEvent& event)
{
    const std::int32_t index = Channel() - 1;
    const std::int32_t type = BlnDataType();
    const auto take = [&](std::int32_t watcher, float& limit, std::int32_t row) {
        if (type == watcher || type == watch::outsideLimits) {
            limit = event.Limits.FromLower(index, row);
        }
    };
    take(watch::belowSecondLower, LimitSecondLower, 0);
    take(watch::belowFirstLower, LimitFirstLower, 1);
    take(watch::aboveFirstUpper, LimitFirstUpper, 2);
    take(watch::aboveSecondUpper, LimitSecondUpper, 3);
}

bool clsBlnDataSource::Label(const ConfigDataEvent& event)
{
    const std::int32_t index = Channel() - 1;
    const auto two = [&](const std::string& label, const char* on, const char* off) {
        return RaiseLabel(label + on, label + off);
    };
    const auto meter = [&](const char* on, const char* off) { return two(event.MtrLabels.FromLower(index), on, off); };
    switch (BlnDataType()) {
    case watch::belowSecondLower:
        return meter(" is below 2nd lower limit", " is in tolerance");
    case watch::belowFirstLower:
        return meter(" is below 1st lower limit", " is in tolerance");
    case watch::aboveFirstUpper:
        return meter(" is above 1st upper limit", " is in tolerance");
    case watch::aboveSecondUpper:
        return meter(" is above 2nd upper limit", " is in tolerance");
    case watch::outsideLimits:
        return meter(" is out of tolerance", " is in tolerance");
    case watch::commandA:
        return two(event.CmdLabels.FromLower(index, 0), " (Engaged)", " (Disengaged)");
    case watch::commandB:
        return two(event.CmdLabels.FromLower(index, 1), " (Engaged)", " (Disengaged)");
    case watch::meterMute:
        return meter(" (Muted)", " (Unmuted)");
    case watch::statusMute:
        return two(event.StatusLabels.FromLower(index, 0), " (Muted)", " (Unmuted)");
    case watch::localMode:
        return RaiseLabel("Local Control", "Remote Control");
    case watch::capturesPending: {
        const std::string unit = UnitCaption(m_live.Server, Site(), Unit());
        return RaiseLabel("Captures pending on " + unit, "No captures pending on " + unit);
    }
    case watch::macroRunning:
        return two(event.MacroNames.FromLower(index, 0), " (Running)", " (Idle)");
    case watch::statusOn:
        return RaiseLabel(event.StatusLabels.FromLower(index, 1), event.StatusLabels.FromLower(index, 0));
    default: // alarms and links get no captions here, those of a unit's alarms from nowhere
        return true;
    }
}

// The limit that must be known before a value is compared; for all four it is the second lower alone.
float clsBlnDataSource::FirstLimit() const noexcept
{
    switch (BlnDataType()) {
    case watch::belowFirstLower:
        return LimitFirstLower;
    case watch::aboveFirstUpper:
        return LimitFirstUpper;
    case watch::aboveSecondUpper:
        return LimitSecondUpper;
    default:
        return LimitSecondLower;
    }
}

bool clsBlnDataSource::IsOutside() const noexcept
{
    switch (BlnDataType()) {
    case watch::belowSecondLower:
        return LastValue < LimitSecondLower;
    case watch::belowFirstLower:
        return LastValue < LimitFirstLower;
    case watch::aboveFirstUpper:
        return LastValue > LimitFirstUpper;
    case watch::aboveSecondUpper:
        return LastValue > LimitSecondUpper;
    default:
        return LastValue < LimitSecondLower || LastValue < LimitFirstLower || LastValue > LimitFirstUpper ||
               LastValue > LimitSecondUpper;
    }
}

void clsBlnDataSource::m_Srv_Values(const ValuesEvent& event)
{
    const auto bit = [&](std::int16_t mask) { return BitOf(mask, Channel()); };
    if (WatchesLimits()) {
        const bool mute = bit(event.MeterMutes);
        LastValue = event.MeterValues.FromLower(Channel() - 1);
        return SetValue(FirstLimit() != NoData && IsOutside(), mute);
    }
    switch (BlnDataType()) {
    case watch::commandA:
        return SetValue(!bit(event.OutPuts), false);
    case watch::commandB:
        return SetValue(bit(event.OutPuts), false);
    case watch::meterMute:
        return SetValue(bit(event.MeterMutes), false);
    case watch::statusMute:
        return SetValue(bit(event.StatMutes), false);
    case watch::capturesPending:
        return SetValue(TheUnit().EventsPending(), false);
    case watch::statusOn:
        return SetValue(bit(event.Status), bit(event.StatMutes));
    default:
        return;
    }
}

void clsBlnDataSource::m_Srv_Connected(const std::string& /*netName*/, std::int32_t status)
{
    if (!IsConnectedStatus(status)) {
        return;
    }
    const std::int32_t type = BlnDataType();
    if (type != watch::primaryPath && type != watch::backupPath) {
        return;
    }
    // Never false: a site that moves to its other path leaves the first one's element on until it disconnects.
    if (TheSite().UsingBackup() == (type == watch::backupPath)) {
        SetValue(true, false);
    }
}

void clsBlnDataSource::m_Srv_Disconnected(const std::string& netName, std::int32_t /*reason*/)
{
    if (BlnDataType() == watch::anyAlarms) {
        SetValue(OtherSiteAlarms(netName), false);
    } else {
        SetValue(false, true);
    }
}

bool clsBlnDataSource::OtherSiteAlarms(const std::string& netName) const
{
    return m_live.TheServer().Sites().AnyOf(
        [&](const TeskSite& site) { return site.NetName() != netName && site.SiteAlarms(); });
}

void clsBlnDataSource::m_Srv_AlarmFlagChange(const std::string& /*netName*/, std::uint8_t /*unit*/, bool alarmsPending,
                                             bool siteAlarms)
{
    switch (BlnDataType()) {
    case watch::siteAlarms:
        return SetValue(siteAlarms, false);
    case watch::unitAlarms:
        return SetValue(alarmsPending, false);
    case watch::anyAlarms:
        return SetValue(m_live.TheServer().AppAlarms(), false);
    default:
        return;
    }
}

void clsBlnDataSource::m_Srv_FlagReport(const FlagReportEvent& event)
{
    switch (BlnDataType()) {
    case watch::siteAlarms:
        return SetValue(event.SiteAlarms, false);
    case watch::unitAlarms:
        return SetValue(event.UnitAlarms, false);
    case watch::anyAlarms:
        return SetValue(event.AppAlarms, false);
    case watch::localMode:
        return SetValue(event.LocalMode, false);
    case watch::capturesPending:
        return SetValue(event.EventsPending, false);
    default:
        return;
    }
}

void clsBlnDataSource::m_Srv_MacroStatus(const std::string& /*netName*/, std::uint8_t /*unit*/, std::uint8_t macro,
                                         bool running)
{
    if (BlnDataType() == watch::macroRunning && macro == Channel()) {
        SetValue(running, false);
    }
}

void clsBlnDataSource::m_Srv_RemoteLocalChange(const std::string& /*netName*/, std::uint8_t unit, bool localOnly)
{
    if (BlnDataType() == watch::localMode && unit == Unit()) {
        SetValue(localOnly, false);
    }
}

} // namespace quor
