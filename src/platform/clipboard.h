#pragma once
// The system's clipboard, as far as text goes.

#include <string>

namespace quor {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void SetText(const std::string& text) = 0;
};

} // namespace quor
