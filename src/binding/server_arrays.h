#pragma once
// The arrays that a server hands out: of any lower bound, and with a failure (9) for an element that isn't there.

#include "base/failure.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace quor {

template <class T> class ServerArray {
public:
    ServerArray() = default;
    explicit ServerArray(std::vector<T> values, std::int32_t lower = 0) : m_values(std::move(values)), m_lower(lower) {}

    std::int32_t LowerBound() const noexcept { return m_lower; }
    std::size_t Count() const noexcept { return m_values.size(); }

    // Counted from the lower bound.
    const T& FromLower(std::int32_t offset) const
    {
        if (offset < 0 || static_cast<std::size_t>(offset) >= m_values.size()) {
            throw Failure(failures::outOfRange);
        }
        return m_values[static_cast<std::size_t>(offset)];
    }

    const T& At(std::int32_t index) const { return FromLower(index - m_lower); }

private:
    std::vector<T> m_values;
    std::int32_t m_lower = 0;
};

// Two dimensions; every row has `columns` elements.
template <class T> class ServerTable {
public:
    ServerTable() = default;
    ServerTable(std::vector<T> values, std::size_t columns, std::int32_t lowerRow = 0, std::int32_t lowerColumn = 0)
        : m_values(std::move(values)), m_columns(columns), m_lowerRow(lowerRow), m_lowerColumn(lowerColumn)
    {
    }

    std::size_t Columns() const noexcept { return m_columns; }
    std::size_t Rows() const noexcept { return m_columns == 0 ? 0 : m_values.size() / m_columns; }

    // Counted from the lower bounds.
    const T& FromLower(std::int32_t row, std::int32_t column) const
    {
        if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= Rows() ||
            static_cast<std::size_t>(column) >= m_columns) {
            throw Failure(failures::outOfRange);
        }
        return m_values[static_cast<std::size_t>(row) * m_columns + static_cast<std::size_t>(column)];
    }

    const T& At(std::int32_t row, std::int32_t column) const
    {
        return FromLower(row - m_lowerRow, column - m_lowerColumn);
    }

private:
    std::vector<T> m_values;
    std::size_t m_columns = 0;
    std::int32_t m_lowerRow = 0;
    std::int32_t m_lowerColumn = 0;
};

} // namespace quor
