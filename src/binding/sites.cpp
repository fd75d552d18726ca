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
    bool exists = false;
    if (server != nullptr) {
        IgnoreFailure(
            [&] { server->Sites().ForEach([&](TeskSite& each) { exists = exists || each.NetName() == site; }); });
    }
    return exists;
}

bool UnitExists(TeskServer* server, const std::string& site, std::uint8_t unit)
{
    bool exists = false;
    if (SiteExists(server, site)) {
        IgnoreFailure([&] {
            server->Sites().Item(site).Units().ForEach(
                [&](TeskUnit& each) { exists = exists || each.UnitNum() == unit; });
        });
    }
    return exists;
}

} // namespace quor
