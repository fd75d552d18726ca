#include "forms/panes.h"

#include <algorithm>

namespace quor {

void RowList::SetRows(std::vector<Row> rows)
{
    const auto last = static_cast<std::int32_t>(rows.size()) - 1;
    PropertyAccess::Value(m_index) = std::min(Index(), last);
    Write(m_rows, std::move(rows));
}

void RowList::Index(std::int32_t index)
{
    RequireIndex(index, Rows().size());
    if (Write(m_index, index)) {
        Click.Raise();
    }
}

void RowList::Choose(std::int32_t index)
{
    if (AcceptsUser()) {
        Index(index);
    }
}

void RowList::Open()
{
    if (AcceptsUser() && Index() >= 0) {
        DblClick.Raise();
    }
}

} // namespace quor
