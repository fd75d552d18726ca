#pragma once
// The page of the label.

#include "elements/label.h"
#include "pages/label_page.h"

namespace quor {

class frmCVLabel final : public LabelPage<clsLabel> {
public:
    explicit frmCVLabel(PageHost& host);
};

} // namespace quor
