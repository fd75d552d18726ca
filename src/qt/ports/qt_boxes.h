#pragma once
// Message boxes of the desktop.

#include "platform/boxes.h"

namespace quor {

class QtBoxes final : public MessageBoxes {
public:
    BoxAnswer Show(const std::string& text, const std::string& title, BoxButtons buttons) override;
};

} // namespace quor
