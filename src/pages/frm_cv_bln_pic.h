#pragma once
// The page of the status picture.

#include "elements/bool_pic.h"
#include "pages/page.h"

namespace quor {

class frmCVBlnPic final : public ElementPage<clsBoolPic> {
public:
    explicit frmCVBlnPic(PageHost& host);
};

} // namespace quor
