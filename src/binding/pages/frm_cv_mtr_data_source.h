#pragma once
// The page "Meter Data": which channel a meter reads, and with how many decimal places it shows it.

#include "binding/mtr_data_source.h"
#include "binding/pages/source_page.h"

namespace quor {

class frmCVMtrDataSource final : public SourcePage {
public:
    explicit frmCVMtrDataSource(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;
    void ClearOwner() override { m_hasOwner = false; }

private:
    void cboSite_Click();
    void cboUnit_Click();
    clsMtrDataSource& Source() const;

    ListBox& cboSite;
    ListBox& cboUnit;
    ListBox& cboChan;
    ListBox& cboDec;
    clsMtrDataSource* m_source = nullptr;
    bool m_hasOwner = false;
};

} // namespace quor
