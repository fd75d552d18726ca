#include "binding/mtr_data_source.h"

#include "base/narrow.h"
#include "binding/bln_data_source.h"
#include "binding/masks.h"

namespace quor {

namespace {

// The counts of a 12-bit converter: signed for a meter that reads both ways, else unsigned.
constexpr std::uint8_t bothWays = 1;
constexpr double leastSigned = -2048;
constexpr double mostSigned = 2047;
constexpr double mostUnsigned = 4095;

} // namespace

clsMtrDataSource::clsMtrDataSource(Live& live, MtrOwner& owner) : DataSourceOn(live), m_owner(owner)
{
    Follow();
}

clsMtrDataSource::~clsMtrDataSource() = default;

void clsMtrDataSource::Fields(FieldWalk& record)
{
    record(Unit, Channel, DecimalPlaces, Site);
}

void clsMtrDataSource::RaiseUpdate(float value, bool mute)
{
    m_live.Tracer->UpdateMtrData(*this, value, mute);
    m_owner.m_MtrDataSource_UpdateMtrData(value, mute);
}

void clsMtrDataSource::Set(decltype(DecimalPlaces) clsMtrDataSource::*property, std::int16_t value)
{
    PropertyAccess::Value(this->*property) = value;
    m_live.Tracer->DecPlacesChanged(*this, DecimalPlaces());
    IgnoreFailure([&] { m_owner.m_MtrDataSource_DecPlacesChanged(DecimalPlaces()); });
}

void clsMtrDataSource::RaiseLabel(const MeterLabel& label)
{
    m_live.Tracer->LabelData(*this, label);
    IgnoreFailure([&] { m_owner.m_MtrDataSource_LabelData(label); });
}

void clsMtrDataSource::RefreshData()
{
    if (HasData) {
        return;
    }
    if (!IgnoreFailure([&] { TheUnit().RequestConfig(); })) {
        RaiseUpdate(NoData, true);
    }
}

void clsMtrDataSource::m_Srv_ConfigData(const ConfigDataEvent& event)
{
    const std::int32_t index = Channel() - 1;
    const double count = event.CalibConst.FromLower(index);
    const bool isSigned = event.MtrTypes.FromLower(index) == bothWays;
    const auto limit = [&](std::int32_t row) { return event.Limits.FromLower(index, row); };
    RaiseLabel({event.MtrLabels.FromLower(index), ToSingle(isSigned ? count * leastSigned : 0),
                ToSingle(count * (isSigned ? mostSigned : mostUnsigned)), limit(0), limit(1), limit(2), limit(3)});
}

void clsMtrDataSource::m_Srv_Values(const ValuesEvent& event)
{
    HasData = true;
    const bool mute = BitOf(event.MeterMutes, Channel());
    RaiseUpdate(event.MeterValues.FromLower(Channel() - 1), mute);
}

void clsMtrDataSource::m_Srv_Disconnected(const std::string& /*netName*/, std::int32_t /*reason*/)
{
    HasData = false;
    RaiseUpdate(NoData, true);
}

} // namespace quor
