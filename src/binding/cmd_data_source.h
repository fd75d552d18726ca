#pragma once
// The click action of an element: what a click does, and where.

#include "base/event.h"
#include "base/property.h"
#include "document/format/field_walk.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

class clsCmdDataSource {
public:
    static constexpr std::string_view name = "ClickAction";

    // The action: 0 none, to 9 open a view.
    Property<"CmdDataType", std::int32_t> CmdDataType;
    Property<"Unit", std::uint8_t> Unit;
    Property<"Channel", std::uint8_t> Channel; // from 1; a macro for the actions 3 and 4
    Property<"CtrlClick", bool> CtrlClick;     // needs the Ctrl key
    Property<"Site", std::string> Site;        // for action 9 the path of the view

    Event<const std::string&> LabelData; // the caption of the action
    Event<bool> ToggleEnable;            // whether it may run was worked out

    // Stores, no more.
    template <class P> void Set(P clsCmdDataSource::*property, typename P::Value value)
    {
        PropertyAccess::Value(this->*property) = std::move(value);
    }

    void Fields(FieldWalk& record);
};

} // namespace quor
