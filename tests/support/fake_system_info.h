#pragma once
// A platform that tells what a test makes it tell: nothing at first.

#include "platform/system_info.h"

namespace quor {

class FakeSystemInfo final : public SystemInfo {
public:
    std::vector<SystemFact> facts;

    std::vector<SystemFact> Facts() override { return facts; }
};

} // namespace quor
