#pragma once
// Who wants to know of what nothing in the program waits for: every write and repaint of a widget, what the sources
// raise ahead of who hears it, and what the editor shows. Nobody does while people use the program.

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

class Band;
class Widget;
class clsBlnDataSource;
class clsCmdDataSource;
class clsMtrDataSource;
struct ErrorReport;
struct MeterLabel;
struct WrittenProperty;

class Trace {
public:
    constexpr Trace() = default;
    constexpr virtual ~Trace() {}

    // Of widgets on a canvas, equal values too.
    virtual void Writes(const Widget& /*widget*/, const WrittenProperty& /*property*/) const {}
    virtual void Repaints(const Widget& /*widget*/) const {}

    virtual void UpdateBlnData(const clsBlnDataSource& /*source*/, bool /*value*/, bool /*mute*/) const {}
    virtual void LabelData(const clsBlnDataSource& /*source*/, const std::string& /*on*/,
                           const std::string& /*off*/) const
    {
    }
    virtual void UpdateMtrData(const clsMtrDataSource& /*source*/, float /*value*/, bool /*mute*/) const {}
    virtual void DecPlacesChanged(const clsMtrDataSource& /*source*/, std::int16_t /*places*/) const {}
    virtual void LabelData(const clsMtrDataSource& /*source*/, const MeterLabel& /*label*/) const {}
    virtual void LabelData(const clsCmdDataSource& /*source*/, const std::string& /*caption*/) const {}
    virtual void ToggleEnable(const clsCmdDataSource& /*source*/, bool /*enable*/) const {}

    // Another widget is selected, or none (null) at each release.
    virtual void Selects(const Widget* /*widget*/) const {}
    virtual void SetsStatus(const std::string& /*text*/) const {}
    // Of the property panel: its tabs for a selection, and each call of a page by its verb ("ClearOwner", "SetOwner",
    // "SetProps"), with the element's name for SetOwner.
    virtual void SetsTabs(const Band& /*panel*/) const {}
    virtual void Calls(std::string_view /*verb*/, const std::string& /*page*/, const std::string& /*element*/) const {}

    // Before the error dialog shows, and before the event loop runs at a step of a load.
    virtual void Reports(const ErrorReport& /*report*/) const {}
    virtual void Steps(std::int32_t /*progress*/) const {}
};

inline constexpr Trace noTrace;

} // namespace quor
