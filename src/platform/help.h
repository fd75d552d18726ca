#pragma once
// The help viewer.

#include <string>

namespace quor {

class Help {
public:
    virtual ~Help() = default;

    // Opens the file at its table of contents.
    virtual void ShowContents(const std::string& path) = 0;
};

} // namespace quor
