#include "binding/cmd_data_source.h"

namespace quor {

void clsCmdDataSource::Fields(FieldWalk& record)
{
    record.AsByte(CmdDataType);
    record(Unit, Channel, CtrlClick, Site);
}

} // namespace quor
