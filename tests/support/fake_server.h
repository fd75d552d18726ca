#pragma once
// A data server whose sites a test sets, and whose operations it sees. It raises no event by itself.

#include "binding/catalog.h"
#include "binding/server.h"
#include "tests/support/planned_failures.h"

#include <deque>
#include <string>
#include <vector>

namespace quor {

class FakeServer;

class FakeUnit final : public TeskUnit,
                       private TeskCommands,
                       private TeskCommand,
                       private TeskUnitConfig,
                       private TeskMacroConfig {
public:
    FakeUnit(FakeServer& server, std::string site, std::uint8_t number)
        : m_server(server), m_site(std::move(site)), m_number(number)
    {
    }

    std::string name;
    bool eventsPending = false;
    bool localMode = false;
    std::vector<std::string> macros = std::vector<std::string>(32);
    // 16 channels of 13 fields.
    std::vector<std::string> channelTable = std::vector<std::string>(16 * 13);

    std::string& Field(int channel, int field)
    {
        return channelTable.at(static_cast<std::size_t>((channel - 1) * 13 + field));
    }

    bool EventsPending() const override { return eventsPending; }
    bool LocalMode() const override { return localMode; }
    const TeskUnitConfig& UnitConfig() const override { return *this; }
    std::string UnitName() const override { return name; }
    std::uint8_t UnitNum() const override { return m_number; }
    TeskCommands& Commands() override { return *this; }
    void ClearAlarms() override { Call("ClearAlarms"); }
    void RequestConfig() override { Call("RequestConfig"); }
    void StopMacro(std::uint8_t macro) override { Call("StopMacro(" + std::to_string(macro) + ")"); }
    void StopAllMacros() override { Call("StopAllMacros"); }
    void RunMacro(std::uint8_t macro) override { Call("RunMacro(" + std::to_string(macro) + ")"); }

private:
    TeskCommand& Item(std::uint8_t index) override
    {
        m_command = index;
        return *this;
    }
    void IssueA() override { Call("Commands.Item(" + std::to_string(m_command) + ").IssueA"); }
    void IssueB() override { Call("Commands.Item(" + std::to_string(m_command) + ").IssueB"); }
    const TeskMacroConfig& MacroConfig() const override { return *this; }
    ServerTable<std::string> ChannelTable() const override { return {channelTable, 13, 1, 0}; }
    ServerArray<std::string> MacroNameList() const override { return ServerArray<std::string>(macros, 5); }
    void Call(const std::string& operation);

    FakeServer& m_server;
    std::string m_site;
    std::uint8_t m_number;
    int m_command = 0;
};

class FakeSite final : public TeskSite, private TeskUnits {
public:
    FakeSite(FakeServer& server, std::string name) : netName(std::move(name)), m_server(server) {}

    std::string netName;
    bool siteAlarms = false;
    bool usingBackup = false;
    bool fails = false; // where it is asked for its name

    FakeUnit& Add(std::uint8_t number) { return m_units.emplace_back(m_server, netName, number); }

    bool SiteAlarms() const override { return siteAlarms; }
    bool UsingBackup() const override { return usingBackup; }
    std::string NetName() const override { return fails ? throw Failure(failures::internal) : netName; }
    TeskUnits& Units() override { return *this; }

private:
    TeskUnit& Item(std::uint8_t unitNum) override;
    bool AnyOf(const std::function<bool(TeskUnit&)>& isSo) override;

    FakeServer& m_server;
    std::deque<FakeUnit> m_units;
};

class FakeServer final : public TeskServer, public TeskSiteCatalog, public TeskCatalogHost, private TeskSites {
public:
    bool appAlarms = false;
    std::vector<std::string> calls;   // Sites.Item("A").Units.Item(1).RequestConfig
    std::vector<std::string> catalog; // the configured sites
    PlannedFailures planned;          // reload, sites
    Event<const std::string&> Called; // an operation, as calls has it

    // Also in the catalogue.
    FakeSite& Add(const std::string& name);
    void Clear();
    void Call(const std::string& operation);

    TeskSites& Sites() override
    {
        planned.Count("sites");
        return *this;
    }
    bool AppAlarms() const override { return appAlarms; }
    TeskSiteCatalog& GetCatalog() override { return *this; }
    void GetSites(TeskSiteList& list) override;
    void ReloadSites() override { planned.Count("reload"); }

private:
    TeskSite& Item(const std::string& netName) override;
    bool AnyOf(const std::function<bool(TeskSite&)>& isSo) override;

    std::deque<FakeSite> m_sites;
};

} // namespace quor
