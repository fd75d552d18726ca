#pragma once
// The page "Action": what a click on the element does.

#include "binding/cmd_data_source.h"
#include "pages/data/source_page.h"

namespace quor {

class frmCVCmdDataSource final : public SourcePageOn<clsCmdDataSource> {
public:
    explicit frmCVCmdDataSource(PageHost& host);

    void SetOwner(Element& element, std::string_view array) override;

private:
    TextBox& MakeViewPath();
    void FillLists();
    void ShowSource();
    void cboAction_Click();
    void cboSite_Click();
    void cboUnit_Click();
    void cboChannel_Click();

    ListBox& cboAction;
    ListBox& cboSite;
    ListBox& cboUnit;
    ListBox& cboChannel;
    Label& lblChannel;
    TextBox& txtCustView;
    CheckBox& chkCtrlClick;
};

} // namespace quor
