#pragma once
// The page "Status Data": what a status element watches, and the status that it shows in the designer.

#include "binding/bln_data_source.h"
#include "pages/data/source_page.h"

namespace quor {

class frmCVBlnDataSource final : public SourcePageOn<clsBlnDataSource> {
public:
    explicit frmCVBlnDataSource(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;

private:
    void FillLists();
    void ShowSource();
    void cboDataType_Click();
    void cboSite_Click();
    void cboUnit_Click();
    void cboChan_Click();
    void cboLimitType_Click();
    void cboMacro_Click();
    void optTmpStatus_Click();

    ListBox& cboDataType;
    ListBox& cboSite;
    ListBox& cboUnit;
    ListBox& cboChan;
    ListBox& cboLimitType;
    ListBox& cboMacro;
    OptionArray& optTmpStatus;
};

} // namespace quor
