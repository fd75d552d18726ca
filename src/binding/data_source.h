#pragma once
// What the data sources have in common: the place in the system that they are bound to, and whether they hear the
// server. Self is the source; its Follow may differ.

#include "base/guard.h"
#include "base/property.h"
#include "binding/live.h"
#include "binding/server.h"
#include "format/field_walk.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>

namespace quor {

class DataSource : public ServerListener {
public:
    Property<"Unit", std::uint8_t> Unit;       // of a meter 255 while none is chosen
    Property<"Channel", std::uint8_t> Channel; // from 1; a macro where the type is one of macros
    Property<"Site", std::string> Site;        // for an action that opens a view its path

    // A walk that fills the source doesn't bind it: Follow does, to the events of what it watches by then.
    void Follow()
    {
        if (m_hears) {
            m_live.Routes.FollowUnit(*m_live.Server, *this, Site(), Unit());
        }
    }

protected:
    // Hears the server unless the program is in design mode now.
    explicit DataSource(Live& live) : m_live(live), m_hears(!live.DesignMode && live.Server != nullptr) {}
    ~DataSource() = default;

    TeskSite& TheSite() const { return m_live.TheServer().Sites().Item(Site()); }
    TeskUnit& TheUnit() const { return TheSite().Units().Item(Unit()); }

    Live& m_live;
    bool m_hears; // the server
};

template <class Self> class DataSourceOn : public DataSource {
public:
    // Stores, no more: nothing is worked out anew.
    template <class C, class P>
    requires std::derived_from<Self, C>
    void Set(P C::*property, typename P::Value value)
    {
        auto& self = static_cast<Self&>(*this);
        PropertyAccess::Value(self.*property) = std::move(value);
        self.Follow();
    }

protected:
    using DataSource::DataSource;
};

} // namespace quor
