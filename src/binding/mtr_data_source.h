#pragma once
// What a meter reads, and the number, scale and limits that come of it.

#include "binding/data_source.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

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

class clsMtrDataSource final : public DataSourceOn<clsMtrDataSource> {
public:
    static constexpr std::string_view name = "MtrDataSource";

    Property<"DecimalPlaces", std::int16_t> DecimalPlaces;

    clsMtrDataSource(Live& live, MtrOwner& owner);
    ~clsMtrDataSource();

    using DataSourceOn::Set;
    // The owner hears of it at each set.
    void Set(decltype(DecimalPlaces) clsMtrDataSource::*property, std::int16_t value);

    void RefreshData();
    void Fields(FieldWalk& record);

private:
    void m_Srv_ConfigData(const ConfigDataEvent& event) override;
    void m_Srv_Values(const ValuesEvent& event) override;
    void m_Srv_Disconnected(const std::string& netName, std::int32_t reason) override;

    void RaiseUpdate(float value, bool mute);
    void RaiseLabel(const MeterLabel& label);

    MtrOwner& m_owner;
    bool HasData = false; // values have come, and the link hasn't been lost since
};

} // namespace quor
