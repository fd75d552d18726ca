#include "tests/journey_driver/server_content.h"

#include "servers/simulator/server_plan.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quor {

namespace {

using nlohmann::json;

void HoldUnit(FakeUnit& unit, const UnitPlan& plan)
{
    unit.name = plan.name;
    unit.localMode = plan.localMode;
    unit.eventsPending = plan.eventsPending;
    for (int channel = 1; channel <= static_cast<int>(UnitPlan::channels); ++channel) {
        const auto index = static_cast<std::size_t>(channel - 1);
        unit.Field(channel, channel_fields::meterLabel) = plan.meters[index].label;
        unit.Field(channel, channel_fields::statusText1) = plan.statuses[index].texts[0];
        unit.Field(channel, channel_fields::statusText2) = plan.statuses[index].texts[1];
        unit.Field(channel, channel_fields::commandA) = plan.commands[index].a;
        unit.Field(channel, channel_fields::commandB) = plan.commands[index].b;
    }
    std::ranges::transform(plan.macros, unit.macros.begin(), &MacroPlan::name);
}

// A word as JSON; fails with JourneyError.
json ParseJson(const std::string& text)
{
    json value = json::parse(text, nullptr, false);
    if (value.is_discarded()) {
        throw JourneyError("no JSON: " + text);
    }
    return value;
}

void Convert(const json& value, std::string& text)
{
    if (value.is_boolean()) {
        text = value.get<bool>() ? "True" : "False";
    } else {
        text = value.is_string() ? value.get<std::string>() : value.dump();
    }
}

template <class Number> void Convert(const json& value, Number& number)
{
    if (!value.is_number()) {
        throw JourneyError("no number: " + value.dump());
    }
    number = static_cast<Number>(value.get<double>());
}

// Takes the words of an event one after the other.
class EventWords {
public:
    explicit EventWords(const Arguments& arguments) : m_arguments(arguments) {}

    std::string Text() { return m_arguments[m_at++]; }
    bool Flag() { return ToBoolean(Text()); }
    std::int32_t Whole() { return ToInteger(Text()); }
    double Number() { return ToNumber(Text()); }
    std::uint8_t Byte()
    {
        std::uint8_t value = 0;
        ReadValue(Text(), value);
        return value;
    }
    // 16 channels, the last of them the sign; without a sign as well.
    std::int16_t Mask()
    {
        const std::int32_t value = Whole();
        if (value < -0x8000 || value > 0xFFFF) {
            throw JourneyError("no mask of 16 bits: " + std::to_string(value));
        }
        return static_cast<std::int16_t>(value);
    }

    template <class T> ServerArray<T> Array()
    {
        std::vector<T> values;
        for (const json& each : List()) {
            Convert(each, values.emplace_back());
        }
        return ServerArray<T>(std::move(values));
    }

    template <class T> ServerTable<T> Table()
    {
        const json rows = List();
        std::size_t columns = 0;
        for (const json& row : rows) {
            if (!row.is_array()) {
                throw JourneyError("no table: " + rows.dump());
            }
            columns = std::max(columns, row.size());
        }
        std::vector<T> values(rows.size() * columns);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (std::size_t column = 0; column < rows[row].size(); ++column) {
                T value{};
                Convert(rows[row][column], value);
                values[row * columns + column] = std::move(value);
            }
        }
        return ServerTable<T>(std::move(values), columns);
    }

private:
    json List()
    {
        json list = ParseJson(Text());
        if (!list.is_array()) {
            throw JourneyError("no array: " + list.dump());
        }
        return list;
    }

    const Arguments& m_arguments;
    std::size_t m_at = 1; // behind the event's name
};

using Raising = std::function<void()>;

// Reads the event's arguments, and gives what raises it.
struct EventRow {
    std::string_view name;
    std::size_t count; // of arguments
    Raising (*read)(Stage& stage, EventWords& words);
};

// Braces take the words in the order in which they are written.

Raising ReadConfigData(Stage& stage, EventWords& words)
{
    ConfigDataEvent event{words.Text(),
                          words.Byte(),
                          words.Table<float>(),
                          words.Table<std::string>(),
                          words.Array<std::string>(),
                          words.Table<std::string>(),
                          words.Array<float>(),
                          words.Array<std::uint8_t>(),
                          words.Table<std::string>()};
    return [&stage, event = std::move(event)] { stage.server.ConfigData.Raise(event); };
}

Raising ReadValues(Stage& stage, EventWords& words)
{
    ValuesEvent event{words.Text(), words.Byte(), words.Number(), words.Mask(),
                      words.Mask(), words.Mask(), words.Mask(),   words.Array<float>()};
    return [&stage, event = std::move(event)] { stage.server.Values.Raise(event); };
}

Raising ReadFlagReport(Stage& stage, EventWords& words)
{
    FlagReportEvent event{words.Text(), words.Byte(), words.Flag(), words.Flag(),
                          words.Flag(), words.Flag(), words.Flag(), words.Flag()};
    return [&stage, event = std::move(event)] { stage.server.FlagReport.Raise(event); };
}

Raising ReadConnected(Stage& stage, EventWords& words)
{
    return [&stage, name = words.Text(), status = words.Whole()] { stage.server.Connected.Raise(name, status); };
}

Raising ReadDisconnected(Stage& stage, EventWords& words)
{
    return [&stage, name = words.Text(), reason = words.Whole()] { stage.server.Disconnected.Raise(name, reason); };
}

Raising ReadRemoteLocalChange(Stage& stage, EventWords& words)
{
    return [&stage, name = words.Text(), unit = words.Byte(), local = words.Flag()] {
        stage.server.RemoteLocalChange.Raise(name, unit, local);
    };
}

Raising ReadAlarmFlagChange(Stage& stage, EventWords& words)
{
    return [&stage, name = words.Text(), unit = words.Byte(), pending = words.Flag(), ofSite = words.Flag()] {
        stage.server.AlarmFlagChange.Raise(name, unit, pending, ofSite);
    };
}

Raising ReadMacroStatus(Stage& stage, EventWords& words)
{
    return [&stage, name = words.Text(), unit = words.Byte(), macro = words.Byte(), running = words.Flag()] {
        stage.server.MacroStatus.Raise(name, unit, macro, running);
    };
}

Raising ReadLogOn(Stage& stage, EventWords& words)
{
    return [&stage, success = words.Flag()] { stage.login.LogOn.Raise(success); };
}

Raising ReadLogOff(Stage& stage, EventWords&)
{
    return [&stage] { stage.login.LogOff.Raise(); };
}

constexpr EventRow events[] = {
    {"ConfigData", 9, ReadConfigData},
    {"Connected", 2, ReadConnected},
    {"Disconnected", 2, ReadDisconnected},
    {"RemoteLocalChange", 3, ReadRemoteLocalChange},
    {"AlarmFlagChange", 4, ReadAlarmFlagChange},
    {"FlagReport", 8, ReadFlagReport},
    {"MacroStatus", 4, ReadMacroStatus},
    {"Values", 8, ReadValues},
    {"LogOn", 1, ReadLogOn},
    {"LogOff", 0, ReadLogOff},
};

const EventRow& FindEvent(const Arguments& arguments)
{
    const auto* row = std::ranges::find(events, std::string_view(arguments[0]), &EventRow::name);
    if (row == std::end(events)) {
        throw JourneyError("no such event: " + arguments[0]);
    }
    if (arguments.Count() != row->count + 1) {
        throw JourneyError(arguments[0] + " has " + std::to_string(row->count) + " arguments");
    }
    return *row;
}

} // namespace

void HoldSites(FakeServer& server, std::string_view text)
{
    ServerPlan plan;
    try {
        plan = ReadServerPlan(text);
    } catch (const Failure& failure) {
        throw JourneyError("no server file: " + failure.Description());
    }
    server.Clear();
    server.appAlarms = plan.appAlarms;
    for (const SitePlan& each : plan.sites) {
        if (each.catalogOnly) {
            server.catalog.push_back(each.netName);
            continue;
        }
        FakeSite& site = server.Add(each.netName);
        site.usingBackup = each.usingBackup;
        site.siteAlarms = each.siteAlarms;
        for (const UnitPlan& unit : each.units) {
            HoldUnit(site.Add(unit.number), unit);
        }
    }
}

void CheckEvent(const Arguments& arguments)
{
    FindEvent(arguments);
}

void RaiseEvent(Stage& stage, const Arguments& arguments)
{
    EventWords words(arguments);
    stage.Raise(FindEvent(arguments).read(stage, words));
}

} // namespace quor
