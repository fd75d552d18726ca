#include "tests/support/fake_server.h"

#include "tests/support/quoted.h"

namespace quor {

FakeUnit::FakeUnit(FakeServer& server, std::string site, std::uint8_t number)
    : m_server(server), m_site(std::move(site)), m_number(number)
{
}

TeskCommand& FakeUnit::Item(std::uint8_t index)
{
    m_command = index;
    return *this;
}

void FakeUnit::Call(const std::string& operation)
{
    m_server.Call("Sites.Item(" + Quoted(m_site) + ").Units.Item(" + std::to_string(m_number) + ")." + operation);
}

TeskUnit& FakeSite::Item(std::uint8_t unitNum)
{
    for (FakeUnit& unit : m_units) {
        if (unit.UnitNum() == unitNum) {
            return unit;
        }
    }
    throw Failure(failures::outOfRange);
}

void FakeSite::ForEach(const std::function<void(TeskUnit&)>& visit)
{
    for (FakeUnit& unit : m_units) {
        visit(unit);
    }
}

FakeSite& FakeServer::Add(const std::string& name)
{
    catalog.push_back(name);
    return m_sites.emplace_back(*this, name);
}

void FakeServer::Clear()
{
    catalog.clear();
    m_sites.clear();
}

void FakeServer::Call(std::string operation)
{
    calls.push_back(std::move(operation));
    Called.Raise(calls.back());
}

void FakeServer::GetSites(TeskSiteList& list)
{
    for (const std::string& name : catalog) {
        list.push_back({name});
    }
}

TeskSite& FakeServer::Item(const std::string& netName)
{
    for (FakeSite& site : m_sites) {
        if (site.netName == netName) {
            return site;
        }
    }
    throw Failure(failures::invalidCall);
}

void FakeServer::ForEach(const std::function<void(TeskSite&)>& visit)
{
    for (FakeSite& site : m_sites) {
        visit(site);
    }
}

} // namespace quor
