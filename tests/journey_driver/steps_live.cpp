// Steps of a view that runs live: what the server holds and raises, the login's events, clicks.

#include "base/guard.h"
#include "document/view_document.h"
#include "servers/simulator/server_plan.h"
#include "tests/journey_driver/steps.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <tuple>

namespace quor {

namespace {

using nlohmann::json;

template <class T> T FromJson(const json& value)
{
    if constexpr (!std::is_same_v<T, std::string>) {
        return static_cast<T>(value.get<double>());
    } else if (value.is_boolean()) {
        return value.get<bool>() ? "True" : "False";
    } else {
        return value.is_string() ? value.get<std::string>() : value.dump();
    }
}

// Takes an argument of an event from its word.
template <class T> void Take(const std::string& word, T& value)
{
    value = To<T>(word);
}

// 16 channels, the last of them the sign; without a sign as well.
void Take(const std::string& word, std::int16_t& mask)
{
    mask = static_cast<std::int16_t>(To<std::int32_t>(word));
}

template <class T> void Take(const std::string& word, ServerArray<T>& array)
{
    std::vector<T> values;
    std::ranges::transform(json::parse(word).get<json::array_t>(), std::back_inserter(values), FromJson<T>);
    array = ServerArray<T>(std::move(values));
}

template <class T> void Take(const std::string& word, ServerTable<T>& table)
{
    const auto rows = json::parse(word).get<std::vector<json::array_t>>();
    const std::size_t columns = rows.empty() ? 0 : std::ranges::max(rows, {}, std::ranges::size).size();
    std::vector<T> values;
    for (const json::array_t& row : rows) {
        std::ranges::transform(row, std::back_inserter(values), FromJson<T>);
        values.resize(values.size() + columns - row.size());
    }
    table = ServerTable<T>(std::move(values), columns);
}

template <class... T> void TakeAll(const Arguments& words, T&... values)
{
    std::size_t at = 2;
    (Take(words[at++], values), ...);
}

void TakeAll(const Arguments& words, ConfigDataEvent& event)
{
    TakeAll(words, event.NetName, event.UnitNum, event.Limits, event.CmdLabels, event.MtrLabels, event.StatusLabels,
            event.CalibConst, event.MtrTypes, event.MacroNames);
}

void TakeAll(const Arguments& words, FlagReportEvent& event)
{
    TakeAll(words, event.NetName, event.UnitNum, event.UnitAlarms, event.SiteAlarms, event.AppAlarms,
            event.EventsPending, event.LogsPending, event.LocalMode);
}

void TakeAll(const Arguments& words, ValuesEvent& event)
{
    TakeAll(words, event.NetName, event.UnitNum, event.TimeRecorded, event.Status, event.OutPuts, event.StatMutes,
            event.MeterMutes, event.MeterValues);
}

template <class... T> void RaiseOn(Stage& stage, Event<T...>& event, const Arguments& words)
{
    std::tuple<std::remove_cvref_t<T>...> values;
    std::apply([&](auto&... each) { TakeAll(words, each...); }, values);
    stage.Raise([&] { std::apply([&](const auto&... each) { event.Raise(each...); }, values); });
}

template <auto Member> void Raise(Stage& stage, const Arguments& words)
{
    RaiseOn(stage, stage.server.*Member, words);
}

void HoldUnit(FakeUnit& unit, const UnitPlan& plan)
{
    unit.name = plan.name;
    unit.localMode = plan.localMode;
    unit.eventsPending = plan.eventsPending;
    for (std::size_t index = 0; index < UnitPlan::channels; ++index) {
        const int channel = static_cast<int>(index) + 1;
        unit.Field(channel, channel_fields::meterLabel) = plan.meters[index].label;
        unit.Field(channel, channel_fields::statusText1) = plan.statuses[index].texts[0];
        unit.Field(channel, channel_fields::statusText2) = plan.statuses[index].texts[1];
        unit.Field(channel, channel_fields::commandA) = plan.commands[index].a;
        unit.Field(channel, channel_fields::commandB) = plan.commands[index].b;
    }
    std::ranges::transform(plan.macros, unit.macros.begin(), &MacroPlan::name);
}

void HoldServer(Stage& stage, const Arguments& words)
{
    const FakeFiles::Bytes bytes = stage.HostBytes(words[1]);
    const ServerPlan plan = ReadServerPlan(std::string(bytes.begin(), bytes.end()));
    stage.server.Clear();
    stage.server.appAlarms = plan.appAlarms;
    for (const SitePlan& each : plan.sites) {
        if (each.catalogOnly) {
            stage.server.catalog.push_back(each.netName);
            continue;
        }
        FakeSite& site = stage.server.Add(each.netName);
        site.usingBackup = each.usingBackup;
        site.siteAlarms = each.siteAlarms;
        for (const UnitPlan& unit : each.units) {
            HoldUnit(site.Add(unit.number), unit);
        }
    }
}

std::set<std::int16_t> Rights(const Arguments& words)
{
    std::set<std::int16_t> rights;
    std::ranges::for_each(words.From(2), [&](const Word& word) { rights.insert(To<std::int16_t>(word.text)); });
    return rights;
}

void PrepareLogin(Stage& stage, const Arguments& words)
{
    stage.login.isLoggedOn = words[1] == "on";
    stage.login.rightsHeld = stage.loginRights = Rights(words);
}

void LogOn(Stage& stage, const Arguments& words)
{
    const bool success = words.As<bool>(1);
    if (success) {
        stage.login.rightsHeld = words.Has(2) ? Rights(words) : stage.loginRights;
    }
    stage.Raise([&] { stage.login.EndLogOn(success); });
}

// What the host of the widget does at a click; a locked action says why, so a disabled button is asked as well. What
// the server fails to do stays between it and the element.
void Run(Stage& stage, const Arguments& words)
{
    MustBe(stage.IsLive(), "no view runs live");
    auto& element = stage.ElementOf(words[1]);
    if (element.MyControl()->Enabled()) {
        element.ClickControl();
    }
    IgnoreFailure([&] { element.ClickAction.RunCommand(words.Has(2) ? clsCmdDataSource::ctrlKey : std::uint8_t{0}); });
}

constexpr StepRow rows[] = {
    {"server FILE", HoldServer},
    {"raise ConfigData SITE N TABLE TABLE ARRAY TABLE ARRAY ARRAY TABLE", Raise<&TeskServer::ConfigData>},
    {"raise Connected SITE N", Raise<&TeskServer::Connected>},
    {"raise Disconnected SITE N", Raise<&TeskServer::Disconnected>},
    {"raise RemoteLocalChange SITE N FLAG", Raise<&TeskServer::RemoteLocalChange>},
    {"raise AlarmFlagChange SITE N FLAG FLAG", Raise<&TeskServer::AlarmFlagChange>},
    {"raise FlagReport SITE N FLAG FLAG FLAG FLAG FLAG FLAG", Raise<&TeskServer::FlagReport>},
    {"raise MacroStatus SITE N N FLAG", Raise<&TeskServer::MacroStatus>},
    {"raise Values SITE N TIME N N N N ARRAY", Raise<&TeskServer::Values>},
    {"raise LogOn FLAG", [](Stage& stage, const Arguments& words) { RaiseOn(stage, stage.login.LogOn, words); }},
    {"raise LogOff", [](Stage& stage, const Arguments& words) { RaiseOn(stage, stage.login.LogOff, words); }},
    {"login on|off [RIGHT...]", PrepareLogin},
    {"logon true|false [RIGHT...]", LogOn},
    {"logoff", [](Stage& stage, const Arguments&) { stage.Raise([&] { stage.login.EndSession(); }); }},
    {"live PATH", [](Stage& stage, const Arguments& words) { stage.OpenLive(words[1]); }},
    {"run NAME [ctrl]", Run},
    {"refresh", [](Stage& stage, const Arguments&) { stage.View().RefreshAll(); }},
};

} // namespace

std::span<const StepRow> LiveSteps()
{
    return rows;
}

} // namespace quor
