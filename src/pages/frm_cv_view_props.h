#pragma once
// The page of the view itself, shown when nothing is selected.

#include "document/view_document.h"
#include "pages/page.h"

namespace quor {

class frmCVViewProps final : public PageOf<clsCustView> {
public:
    explicit frmCVViewProps(PageHost& host);

    // Takes the document from the host and shows it.
    void SetProps() { ReadAll(); }

private:
    clsCustView& TheOwner() const override { return m_host.View(); }
};

} // namespace quor
