#pragma once
// The page of the command button.

#include "elements/command.h"
#include "pages/page.h"

namespace quor {

class frmCVCommand final : public ElementPage<clsCommand> {
public:
    explicit frmCVCommand(PageHost& host);
};

} // namespace quor
