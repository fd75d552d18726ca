#pragma once
// The desktop's clipboard.

#include "platform/clipboard.h"

namespace quor {

class QtClipboard final : public Clipboard {
public:
    void Clear() override;
    void SetText(const std::string& text) override;
};

} // namespace quor
