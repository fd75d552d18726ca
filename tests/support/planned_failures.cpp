#include "tests/support/planned_failures.h"

#include <algorithm>

namespace quor {

void PlannedFailures::Plan(std::string_view call, int n, std::int32_t number)
{
    Operation& operation = m_operations[std::string(call)];
    operation.planned.push_back({operation.calls + n, number});
}

void PlannedFailures::Count(std::string_view call)
{
    Operation& operation = m_operations[std::string(call)];
    const int current = ++operation.calls;
    const auto due = std::find_if(operation.planned.begin(), operation.planned.end(),
                                  [&](const Planned& planned) { return planned.atCall == current; });
    if (due != operation.planned.end()) {
        const std::int32_t number = due->number;
        operation.planned.erase(due);
        throw Failure(number);
    }
}

int PlannedFailures::Calls(std::string_view call) const
{
    const auto found = m_operations.find(call);
    return found == m_operations.end() ? 0 : found->second.calls;
}

} // namespace quor
