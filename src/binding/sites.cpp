#include "binding/sites.h"

#include "base/guard.h"
#include "binding/server.h"

namespace quor {

namespace {
constexpr std::uint8_t voiceInterface = 16;
}

std::string UnitCaption(TeskServer* server, const std::string& site, std::uint8_t unit)
{
    const std::string numbered = "Unit " + std::to_string(unit);
    std::string label;
    const bool isKnown =
        server != nullptr && IgnoreFailure([&] { label = server->Sites().Item(site).Units().Item(unit).UnitName(); });
    if (!isKnown || !label.empty()) {
        return isKnown ? label : numbered;
    }
    return unit == voiceInterface ? "Voice Interface" : numbered;
}

bool SiteExists(TeskServer* server, const std::string& site)
{
    return server != nullptr && server->Sites().AnyOf([&](const TeskSite& each) { return each.NetName() == site; });
}

bool UnitExists(TeskServer* server, const std::string& site, std::uint8_t unit)
{
    return SiteExists(server, site) &&
           server->Sites().Item(site).Units().AnyOf([&](const TeskUnit& each) { return each.UnitNum() == unit; });
}

} // namespace quor
