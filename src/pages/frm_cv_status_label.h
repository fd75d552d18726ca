#pragma once
// The page of the status label.

#include "elements/status_label.h"
#include "pages/label_page.h"

namespace quor {

class frmCVStatusLabel final : public LabelPage<clsStatusLabel> {
public:
    explicit frmCVStatusLabel(PageHost& host);
};

} // namespace quor
