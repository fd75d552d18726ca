#pragma once
// Questions about sites and units of the server.

#include <cstdint>
#include <string>

namespace quor {

class TeskServer;

// The unit's label; "Voice Interface" for 16 without one, else "Unit " and the number, as for a unit that can't be
// asked. Null stands for no server.
std::string UnitCaption(TeskServer* server, const std::string& site, std::uint8_t unit);

// Whether the server holds a site of exactly this name, and such a unit of it. Failures of the server pass.
bool SiteExists(TeskServer* server, const std::string& site);
bool UnitExists(TeskServer* server, const std::string& site, std::uint8_t unit);

// Whether a status of the event Connected means that the link is up.
constexpr bool IsConnectedStatus(std::int32_t status)
{
    return status == 5 || status == 6;
}

} // namespace quor
