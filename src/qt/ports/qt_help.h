#pragma once
// Help in the desktop's own viewer for the file.

#include "platform/help.h"

namespace quor {

class QtHelp final : public Help {
public:
    // Failures: 53 file not found, 5 no viewer for it.
    void ShowContents(const std::string& path) override;
};

} // namespace quor
