#pragma once
// The page "Meter Data": which channel a meter reads, and with how many decimal places it shows it.

#include "binding/mtr_data_source.h"
#include "pages/data/source_page.h"

namespace quor {

class frmCVMtrDataSource final : public SourcePageOn<clsMtrDataSource> {
public:
    explicit frmCVMtrDataSource(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;

private:
    void cboSite_Click();
    void cboUnit_Click();

    ListBox& cboSite;
    ListBox& cboUnit;
    ListBox& cboChan;
    ListBox& cboDec;
};

} // namespace quor
