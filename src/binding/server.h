#pragma once
// The data server as the program sees it: sites with units, their channels and macros, and the events that carry what
// is live. Any object that offers this serves.
//
// Units are 0 to 15, and 16 for the voice interface; channels 1 to 16 and macros 1 to 32.

#include "base/event.h"
#include "binding/server_arrays.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quor {

class TeskCommand {
public:
    virtual ~TeskCommand() = default;
    virtual void IssueA() = 0;
    virtual void IssueB() = 0;
};

class TeskCommands {
public:
    virtual ~TeskCommands() = default;
    virtual TeskCommand& Item(std::uint8_t index) = 0; // the channel less 1
};

class TeskMacroConfig {
public:
    virtual ~TeskMacroConfig() = default;
    virtual ServerArray<std::string> MacroNameList() const = 0; // 32; an unnamed macro is empty
};

// The fields of the channel table that the program reads.
namespace channel_fields {
inline constexpr std::int32_t meterLabel = 0;
inline constexpr std::int32_t statusText1 = 8;
inline constexpr std::int32_t statusText2 = 9;
inline constexpr std::int32_t commandA = 11;
inline constexpr std::int32_t commandB = 12;
} // namespace channel_fields

class TeskUnitConfig {
public:
    virtual ~TeskUnitConfig() = default;
    virtual const TeskMacroConfig& MacroConfig() const = 0;
    virtual ServerTable<std::string> ChannelTable() const = 0; // by channel, from 1, and field, from 0
};

class TeskUnit {
public:
    virtual ~TeskUnit() = default;
    virtual bool EventsPending() const = 0;
    virtual bool LocalMode() const = 0;
    virtual const TeskUnitConfig& UnitConfig() const = 0;
    virtual std::string UnitName() const = 0; // may be empty
    virtual std::uint8_t UnitNum() const = 0;
    virtual TeskCommands& Commands() = 0;
    virtual void ClearAlarms() = 0;
    // Asks the unit to send its data again; they come as events.
    virtual void RequestConfig() = 0;
    virtual void StopMacro(std::uint8_t macro) = 0;
    virtual void StopAllMacros() = 0;
    virtual void RunMacro(std::uint8_t macro) = 0;
};

class TeskUnits {
public:
    virtual ~TeskUnits() = default;
    virtual TeskUnit& Item(std::uint8_t unitNum) = 0; // fails for a unit that isn't there
    // Whether a unit is so; the first that is ends the walk.
    virtual bool AnyOf(const std::function<bool(TeskUnit&)>& isSo) = 0;
    void ForEach(const std::function<void(TeskUnit&)>& visit)
    {
        AnyOf([&](TeskUnit& unit) { return visit(unit), false; });
    }
};

class TeskSite {
public:
    virtual ~TeskSite() = default;
    virtual bool SiteAlarms() const = 0;
    virtual bool UsingBackup() const = 0;
    virtual std::string NetName() const = 0;
    virtual TeskUnits& Units() = 0;
};

class TeskSites {
public:
    virtual ~TeskSites() = default;
    virtual TeskSite& Item(const std::string& netName) = 0; // fails for a site that isn't there
    // Whether a site is so; the first that is ends the walk.
    virtual bool AnyOf(const std::function<bool(TeskSite&)>& isSo) = 0;
    void ForEach(const std::function<void(TeskSite&)>& visit)
    {
        AnyOf([&](TeskSite& site) { return visit(site), false; });
    }
};

// The arguments of the events that have many, in their order. Arrays are by channel less 1 (or macro less 1).
struct ConfigDataEvent {
    std::string NetName;
    std::uint8_t UnitNum = 0;
    ServerTable<float> Limits;          // rows 0 to 3: second lower, first lower, first upper, second upper
    ServerTable<std::string> CmdLabels; // A, B
    ServerArray<std::string> MtrLabels;
    ServerTable<std::string> StatusLabels; // off, on
    ServerArray<float> CalibConst;         // engineering units a count
    ServerArray<std::uint8_t> MtrTypes;    // 1 reads both ways from zero
    ServerTable<std::string> MacroNames;   // name, and whether it runs as a text
};

struct FlagReportEvent {
    std::string NetName;
    std::uint8_t UnitNum = 0;
    bool UnitAlarms = false;
    bool SiteAlarms = false;
    bool AppAlarms = false;
    bool EventsPending = false;
    bool LogsPending = false;
    bool LocalMode = false;
};

struct ValuesEvent {
    std::string NetName;
    std::uint8_t UnitNum = 0;
    double TimeRecorded = 0;
    std::int16_t Status = 0;     // bit set: on
    std::int16_t OutPuts = 0;    // bit set: command B is engaged, clear: A
    std::int16_t StatMutes = 0;  // bit set: the status channel is muted
    std::int16_t MeterMutes = 0; // the same for the meter channel
    ServerArray<float> MeterValues;
};

class TeskServer {
public:
    virtual ~TeskServer() = default;

    virtual TeskSites& Sites() = 0;
    virtual bool AppAlarms() const = 0;

    Event<const ConfigDataEvent&> ConfigData;
    Event<const std::string&, std::int32_t> Connected;               // net name, status: 5 and 6 alone mean connected
    Event<const std::string&, std::int32_t> Disconnected;            // net name, reason
    Event<const std::string&, std::uint8_t, bool> RemoteLocalChange; // net name, unit, local only
    Event<const std::string&, std::uint8_t, bool, bool> AlarmFlagChange; // net name, unit, alarms pending, site alarms
    Event<const FlagReportEvent&> FlagReport;
    Event<const std::string&, std::uint8_t, std::uint8_t, bool> MacroStatus; // net name, unit, macro, running
    Event<const ValuesEvent&> Values;
};

} // namespace quor
