#pragma once
// The failures that a test plans for the calls of a port, and the count of those calls.

#include "base/failure.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class PlannedFailures {
public:
    // The n-th next call of that operation (1: the very next) fails with that number.
    void Plan(std::string_view call, int n, std::int32_t number = failures::internal);

    // What a port does at the head of each operation; fails if that is planned.
    void Count(std::string_view call);

    // How often the operation has been called so far, failed calls too.
    int Calls(std::string_view call) const;

private:
    struct Planned {
        int atCall;
        std::int32_t number;
    };
    struct Operation {
        int calls = 0;
        std::vector<Planned> planned;
    };
    std::map<std::string, Operation, std::less<>> m_operations;
};

} // namespace quor
