#pragma once
// The failures that a test plans for the calls of a port, and the count of those calls.

#include "base/failure.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace quor {

class PlannedFailures {
public:
    // The n-th next call of that operation (1: the very next) fails with that number.
    void Plan(std::string_view call, int n, std::int32_t number = failures::internal)
    {
        Operation& operation = m_operations[std::string(call)];
        operation.numbers[operation.calls + n] = number;
    }

    // What a port does at the head of each operation; fails if that is planned.
    void Count(std::string_view call)
    {
        Operation& operation = m_operations[std::string(call)];
        if (const auto due = operation.numbers.find(++operation.calls); due != operation.numbers.end()) {
            throw Failure(due->second);
        }
    }

    // How often the operation has been called so far, failed calls too.
    int Calls(std::string_view call) const
    {
        const auto found = m_operations.find(call);
        return found == m_operations.end() ? 0 : found->second.calls;
    }

private:
    struct Operation {
        int calls = 0;
        std::map<int, std::int32_t> numbers; // of the failures, by the count of the call
    };
    std::map<std::string, Operation, std::less<>> m_operations;
};

} // namespace quor
