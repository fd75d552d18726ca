#pragma once
// What a meter reads, and the number, scale and limits that come of it.

#include "base/property.h"
#include "binding/router.h"
#include "format/field_walk.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

struct Live;

// The configuration of a meter channel.
struct MeterLabel {
    std::string strLabel;
    float sngMin = 0;
    float sngMax = 0;
    float sngSecondLower = 0;
    float sngFirstLower = 0;
    float sngFirstUpper = 0;
    float sngSecondUpper = 0;
};

// The element that owns a source and hears it.
class MtrOwner {
public:
    // The reading, NoData for none, and whether it isn't to be trusted.
    virtual void m_MtrDataSource_UpdateMtrData(float sngValue, bool blnMute) = 0;
    virtual void m_MtrDataSource_DecPlacesChanged(std::int16_t /*intNewVal*/) {}
    virtual void m_MtrDataSource_LabelData(const MeterLabel& /*label*/) {}

protected:
    ~MtrOwner() = default;
};

class clsMtrDataSource final : public ServerListener {
public:
    static constexpr std::string_view name = "MtrDataSource";

    Property<"Unit", std::uint8_t> Unit;       // 255 while none is chosen
    Property<"Channel", std::uint8_t> Channel; // from 1
    Property<"DecimalPlaces", std::int16_t> DecimalPlaces;
    Property<"Site", std::string> Site;

    // Hears the server unless the program is in design mode now.
    clsMtrDataSource(Live& live, MtrOwner& owner);
    ~clsMtrDataSource();

    // Stores; the owner hears of DecimalPlaces at each set.
    template <class P> void Set(P clsMtrDataSource::*property, typename P::Value value)
    {
        PropertyAccess::Value(this->*property) = std::move(value);
        if constexpr (P::name == "DecimalPlaces") {
            RaiseDecimalPlaces();
        } else {
            Follow();
        }
    }

    void RefreshData();
    // A walk that fills the source doesn't bind it: Follow does, to the events of what it watches by then.
    void Fields(FieldWalk& record);
    void Follow();

private:
    void m_Srv_ConfigData(const ConfigDataEvent& event) override;
    void m_Srv_Values(const ValuesEvent& event) override;
    void m_Srv_Disconnected(const std::string& netName, std::int32_t reason) override;

    void RaiseUpdate(float value, bool mute);
    void RaiseDecimalPlaces();
    void RaiseLabel(const MeterLabel& label);

    Live& m_live;
    MtrOwner& m_owner;
    bool HasData = false; // values have come, and the link hasn't been lost since
    bool m_hears;
};

} // namespace quor
