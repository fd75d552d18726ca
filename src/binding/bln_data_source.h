#pragma once
// What a status element watches, and the one Boolean that comes of it.

#include "base/event.h"
#include "base/property.h"
#include "document/format/field_walk.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

class clsBlnDataSource {
public:
    static constexpr std::string_view name = "BlnDataSource";

    // What is watched: 0 nothing, to 18 a status channel.
    Property<"BlnDataType", std::int32_t> BlnDataType;
    Property<"Unit", std::uint8_t> Unit;
    Property<"Channel", std::uint8_t> Channel; // from 1; a macro for type 17
    Property<"Site", std::string> Site;

    Event<bool, bool> UpdateBlnData;                         // value, and whether it isn't to be trusted
    Event<const std::string&, const std::string&> LabelData; // captions for on and off

    // Stores, no more: nothing is worked out anew.
    template <class P> void Set(P clsBlnDataSource::*property, typename P::Value value)
    {
        PropertyAccess::Value(this->*property) = std::move(value);
    }

    bool blnValue() const noexcept { return m_value; }

    // Sets the value from outside and passes it on.
    void ForceValue(bool value, bool mute);

    // Brings the source up to date; what it can't find out shows as false and muted.
    void RefreshData();

    void Fields(FieldWalk& record);

private:
    void SetValue(bool value, bool mute);

    bool m_value = false;
};

} // namespace quor
