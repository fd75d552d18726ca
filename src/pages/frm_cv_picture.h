#pragma once
// The page of the picture.

#include "elements/picture.h"
#include "pages/page.h"

namespace quor {

class frmCVPicture final : public ElementPage<clsPicture> {
public:
    explicit frmCVPicture(PageHost& host);
};

} // namespace quor
