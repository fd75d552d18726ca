#pragma once
// The mouse pointer over all the program's windows.

#include "platform/screen.h"

namespace quor {

class QtScreen final : public Screen {
public:
    // Setting the same pointer again changes nothing; Default takes back whatever was set here and nothing else.
    void SetMousePointer(MousePointer pointer) override;

private:
    bool m_isOverridden = false;
};

} // namespace quor
