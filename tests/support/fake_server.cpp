#include "tests/support/fake_server.h"

#include "tests/support/quoted.h"

#include <algorithm>

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

bool FakeSite::AnyOf(const std::function<bool(TeskUnit&)>& isSo)
{
    return std::ranges::any_of(m_units, isSo);
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

bool FakeServer::AnyOf(const std::function<bool(TeskSite&)>& isSo)
{
    return std::ranges::any_of(m_sites, isSo);
}

} // namespace quor
