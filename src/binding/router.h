#pragma once
// Brings each event of the server to the sources that it can concern, and to no other.
//
// A source says what it follows: a unit of a site, a whole site, or all sites. A listener may leave, end others, or
// follow something else while an event is under way.
//
// The followers of one unit, of one site and of all sites are a ring each, and an event that concerns several walks one
// ring after the other. Who comes new to a ring that is being walked waits for the next event, also who was in it and
// binds itself anew; who moves to a ring whose turn is still to come is called there, even if it was called before.

#include "base/event.h"
#include "base/ring.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace quor {

class Router;
class TeskServer;
struct ConfigDataEvent;
struct FlagReportEvent;
struct ValuesEvent;

// The handlers of a source, called for what it follows: of a unit those that concern one unit, its site or all of it.
// A failure ends the handler silently.
class ServerListener : private RingNode {
public:
    virtual void m_Srv_ConfigData(const ConfigDataEvent& /*event*/) {}
    virtual void m_Srv_Connected(const std::string& /*netName*/, std::int32_t /*status*/) {}
    virtual void m_Srv_Disconnected(const std::string& /*netName*/, std::int32_t /*reason*/) {}
    virtual void m_Srv_RemoteLocalChange(const std::string& /*netName*/, std::uint8_t /*unit*/, bool /*localOnly*/) {}
    virtual void m_Srv_AlarmFlagChange(const std::string& /*netName*/, std::uint8_t /*unit*/, bool /*alarmsPending*/,
                                       bool /*siteAlarms*/)
    {
    }
    virtual void m_Srv_FlagReport(const FlagReportEvent& /*event*/) {}
    virtual void m_Srv_MacroStatus(const std::string& /*netName*/, std::uint8_t /*unit*/, std::uint8_t /*macro*/,
                                   bool /*running*/)
    {
    }
    virtual void m_Srv_Values(const ValuesEvent& /*event*/) {}

protected:
    ServerListener() = default;
    ~ServerListener() = default;

private:
    friend class Router;
};

class Router {
public:
    Router();
    Router(const Router&) = delete;
    Router& operator=(const Router&) = delete;
    ~Router();

    // From the first follower on, this server's events are brought.
    void FollowUnit(TeskServer& server, ServerListener& listener, const std::string& site, std::uint8_t unit);
    void FollowSite(TeskServer& server, ServerListener& listener, const std::string& site);
    void FollowAll(TeskServer& server, ServerListener& listener);

    // How many sites are known, those lately deserted too.
    std::size_t SiteCount() const noexcept { return m_sites.size(); }

private:
    // The followers of one site, by unit; the last ring follows the site as a whole.
    struct Site;

    void Listen(TeskServer& server);
    Site& SiteOf(const std::string& name);
    Site* FindSite(const std::string& name) const;
    template <class Call> static void Bring(Ring& ring, Call call);
    template <class Visit> void VisitSite(const std::string& name, Visit visit);
    template <class Call> void ToUnit(const std::string& site, std::uint8_t unit, Call call);
    template <class Call> void ToSite(const std::string& site, Call call);
    template <class Call> void ToFlags(const std::string& site, std::uint8_t unit, Call call);

    std::unordered_map<std::string, std::unique_ptr<Site>> m_sites;
    Ring m_all;
    TeskServer* m_server = nullptr;
    std::size_t m_cleaningAt = 64; // sites without followers are dropped when there are as many
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
