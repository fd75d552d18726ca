#include "servers/simulator/server_plan.h"

#include "base/narrow.h"
#include "servers/simulator/json_pull.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

class PlanReader {
public:
    explicit PlanReader(std::string_view json) : m_json(json) {}

    ServerPlan All()
    {
        ServerPlan plan;
        m_json.Object([&](const std::string& key) {
            if (key == "AppAlarms") {
                plan.appAlarms = m_json.Flag();
            } else if (key == "Sites") {
                m_json.Array([&] { plan.sites.push_back(Site(plan)); });
            } else {
                m_json.Skip();
            }
        });
        m_json.Finish();
        return plan;
    }

private:
    SitePlan Site(const ServerPlan& plan)
    {
        SitePlan site;
        m_json.Object([&](const std::string& key) {
            if (key == "NetName") {
                site.netName = m_json.Text();
            } else if (key == "UsingBackup") {
                site.usingBackup = m_json.Flag();
            } else if (key == "SiteAlarms") {
                site.siteAlarms = m_json.Flag();
            } else if (key == "CatalogOnly") {
                site.catalogOnly = m_json.Flag();
            } else if (key == "Units") {
                m_json.Array([&] { site.units.push_back(Unit(site)); });
            } else {
                m_json.Skip();
            }
        });
        if (std::ranges::find(plan.sites, site.netName, &SitePlan::netName) != plan.sites.end()) {
            m_json.Refuse("the site \"" + site.netName + "\" is there twice.");
        }
        return site;
    }

    UnitPlan Unit(const SitePlan& site)
    {
        UnitPlan unit;
        m_json.Object([&](const std::string& key) { UnitMember(unit, key); });
        if (std::ranges::find(site.units, unit.number, &UnitPlan::number) != site.units.end()) {
            m_json.Refuse("unit " + std::to_string(unit.number) + " is there twice.");
        }
        return unit;
    }

    void UnitMember(UnitPlan& unit, const std::string& key)
    {
        if (key == "UnitNum") {
            unit.number = Whole(UnitPlan::highestNumber);
        } else if (key == "UnitName") {
            unit.name = m_json.Text();
        } else if (key == "LocalMode") {
            unit.localMode = m_json.Flag();
        } else if (key == "EventsPending") {
            unit.eventsPending = m_json.Flag();
        } else if (key == "Meters") {
            Each(unit.meters, [this](MeterPlan& meter, const std::string& name) { MeterMember(meter, name); });
        } else if (key == "Statuses") {
            Each(unit.statuses, [this](StatusPlan& status, const std::string& name) { StatusMember(status, name); });
        } else if (key == "Commands") {
            Each(unit.commands, [this](CommandPlan& command, const std::string& name) {
                name == "A" ? Take(command.a) : name == "B" ? Take(command.b) : m_json.Skip();
            });
        } else if (key == "Macros") {
            Each(unit.macros, [this](MacroPlan& macro, const std::string& name) {
                name == "Name" ? Take(macro.name) : name == "Running" ? Take(macro.running) : m_json.Skip();
            });
        } else {
            m_json.Skip();
        }
    }

    void MeterMember(MeterPlan& meter, const std::string& key)
    {
        if (key == "Label") {
            Take(meter.label);
        } else if (key == "Calibration") {
            Take(meter.calibration);
        } else if (key == "Type") {
            meter.type = Whole(255);
        } else if (key == "Limits") {
            Items(meter.limits, [this](float& limit) { Take(limit); });
        } else {
            m_json.Skip();
        }
    }

    void StatusMember(StatusPlan& status, const std::string& key)
    {
        if (key == "Off") {
            Take(status.off);
        } else if (key == "On") {
            Take(status.on);
        } else if (key == "Texts") {
            Items(status.texts, [this](std::string& text) { Take(text); });
        } else {
            m_json.Skip();
        }
    }

    // The items of an array, as many as there are; more than there may be don't fit.
    template <class T, std::size_t Count, class Read> void Items(std::array<T, Count>& items, const Read& read)
    {
        std::size_t index = 0;
        m_json.Array([&] {
            if (index == Count) {
                m_json.Refuse("more than " + std::to_string(Count) + " in a row.");
            }
            read(items[index++]);
        });
    }

    template <class T, std::size_t Count, class Member> void Each(std::array<T, Count>& items, const Member& member)
    {
        Items(items, [&](T& item) { m_json.Object([&](const std::string& key) { member(item, key); }); });
    }

    void Take(std::string& text) { text = m_json.Text(); }
    void Take(bool& flag) { flag = m_json.Flag(); }
    void Take(float& number)
    {
        const double value = m_json.Number();
        number = static_cast<float>(value);
        if (!std::isfinite(number)) {
            m_json.Refuse("the number is too large.");
        }
    }

    std::uint8_t Whole(std::uint8_t greatest)
    {
        const double number = m_json.Number();
        if (number < 0 || number > greatest || number != std::floor(number)) {
            m_json.Refuse("a whole number from 0 to " + std::to_string(greatest) + " is wanted.");
        }
        return static_cast<std::uint8_t>(number);
    }

    JsonPull m_json;
};

} // namespace

ServerPlan ReadServerPlan(std::string_view json)
{
    return PlanReader(json).All();
}

} // namespace quor
