#include "servers/simulator/server_plan.h"

#include "base/failure.h"
#include "json/json.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quor {

namespace {

// What a file tells of each thing. What it lacks stays as it is, what it tells besides is let be.
struct PlanReader {
    template <class T> static void Read(const JsonValue& json, T& value) { value = json.As<T>(); }

    template <class T, std::size_t Most> static void Read(const JsonValue& json, std::array<T, Most>& values)
    {
        std::size_t index = 0;
        for (const JsonValue& item : json.Items(Most)) {
            Read(item, values[index++]);
        }
    }

    // Whose items are told apart by one of their members.
    template <class T, class Key>
    static void ReadAll(const JsonValue& json, std::string_view name, std::vector<T>& values, Key T::*key)
    {
        const std::optional<JsonValue> list = json.Find(name);
        for (const JsonValue& item : list ? list->Items() : std::vector<JsonValue>()) {
            T value;
            Read(item, value);
            if (std::ranges::find(values, value.*key, key) != values.end()) {
                item.Fail(failures::typeMismatch, "is there twice");
            }
            values.push_back(std::move(value));
        }
    }

    template <class T> static void Member(const JsonValue& json, std::string_view name, T& value)
    {
        if (const std::optional<JsonValue> member = json.Find(name)) {
            Read(*member, value);
        }
    }

    static void Read(const JsonValue& json, MeterPlan& meter)
    {
        Member(json, "Label", meter.label);
        Member(json, "Calibration", meter.calibration);
        Member(json, "Type", meter.type);
        Member(json, "Limits", meter.limits);
    }

    static void Read(const JsonValue& json, StatusPlan& status)
    {
        Member(json, "Off", status.off);
        Member(json, "On", status.on);
        Member(json, "Texts", status.texts);
    }

    static void Read(const JsonValue& json, CommandPlan& command)
    {
        Member(json, "A", command.a);
        Member(json, "B", command.b);
    }

    static void Read(const JsonValue& json, MacroPlan& macro)
    {
        Member(json, "Name", macro.name);
        Member(json, "Running", macro.running);
    }

    static void Read(const JsonValue& json, UnitPlan& unit)
    {
        Member(json, "UnitNum", unit.number);
        if (unit.number > UnitPlan::highestNumber) {
            json["UnitNum"].Fail(failures::overflow, "is out of range");
        }
        Member(json, "UnitName", unit.name);
        Member(json, "LocalMode", unit.localMode);
        Member(json, "EventsPending", unit.eventsPending);
        Member(json, "Meters", unit.meters);
        Member(json, "Statuses", unit.statuses);
        Member(json, "Commands", unit.commands);
        Member(json, "Macros", unit.macros);
    }

    static void Read(const JsonValue& json, SitePlan& site)
    {
        Member(json, "NetName", site.netName);
        Member(json, "UsingBackup", site.usingBackup);
        Member(json, "SiteAlarms", site.siteAlarms);
        Member(json, "CatalogOnly", site.catalogOnly);
        ReadAll(json, "Units", site.units, &UnitPlan::number);
    }
};

} // namespace

ServerPlan ReadServerPlan(std::string_view json)
{
    const Json parsed = ParseJson(json);
    const JsonValue root(parsed);
    ServerPlan plan;
    PlanReader::Member(root, "AppAlarms", plan.appAlarms);
    PlanReader::ReadAll(root, "Sites", plan.sites, &SitePlan::netName);
    return plan;
}

} // namespace quor
