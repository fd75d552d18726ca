#pragma once
// Why a command of the tool could not run.

#include <string>

namespace quor {

struct Refusal {
    std::string reason;
};

} // namespace quor
