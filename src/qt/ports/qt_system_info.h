#pragma once
// The system, the toolkit and the screen, as the toolkit knows them.

#include "platform/system_info.h"

namespace quor {

class QtSystemInfo final : public SystemInfo {
public:
    std::vector<SystemFact> Facts() override;
};

} // namespace quor
