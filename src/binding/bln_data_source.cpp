#include "binding/bln_data_source.h"

namespace quor {

void clsBlnDataSource::Fields(FieldWalk& record)
{
    record.AsByte(BlnDataType);
    record(Unit, Channel, Site);
}

void clsBlnDataSource::ForceValue(bool value, bool mute)
{
    SetValue(value, mute);
}

void clsBlnDataSource::RefreshData()
{
    const bool watchesNothing = BlnDataType() == 0;
    SetValue(false, !watchesNothing);
}

void clsBlnDataSource::SetValue(bool value, bool mute)
{
    m_value = value;
    UpdateBlnData.Raise(value, mute);
}

} // namespace quor
