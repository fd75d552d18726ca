#include "tests/support/fake_server.h"

#include "tests/support/quoted.h"

#include <algorithm>

namespace quor {

void FakeUnit::Call(const std::string& operation)
{
    m_server.Call("Sites.Item(" + Quoted(m_site) + ").Units.Item(" + std::to_string(m_number) + ")." + operation);
}

TeskUnit& FakeSite::Item(std::uint8_t unitNum)
{
    const auto found = std::ranges::find(m_units, unitNum, &FakeUnit::UnitNum);
    return found == m_units.end() ? throw Failure(failures::outOfRange) : *found;
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

void FakeServer::Call(const std::string& operation)
{
    calls.push_back(operation);
    Called.Raise(operation);
}

void FakeServer::GetSites(TeskSiteList& list)
{
    for (const std::string& name : catalog) {
        list.push_back({name});
    }
}

TeskSite& FakeServer::Item(const std::string& netName)
{
    const auto found = std::ranges::find(m_sites, netName, &FakeSite::netName);
    return found == m_sites.end() ? throw Failure(failures::invalidCall) : *found;
}

bool FakeServer::AnyOf(const std::function<bool(TeskSite&)>& isSo)
{
    return std::ranges::any_of(m_sites, isSo);
}

} // namespace quor
