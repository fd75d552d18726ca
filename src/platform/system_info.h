#pragma once
// What the platform knows of the machine and the desk that the program runs on.

#include <string>
#include <vector>

namespace quor {

struct SystemFact {
    std::string label; // "Kernel"
    std::string value;
};

class SystemInfo {
public:
    virtual ~SystemInfo() = default;

    // In the order in which they are to be shown; none where the platform tells nothing.
    virtual std::vector<SystemFact> Facts() = 0;
};

} // namespace quor
