#include "binding/cmd_data_source.h"
#include "elements/element.h"
#include "pages/data/data_pages.h"
#include "pages/data/source_page.h"

namespace quor {

namespace {

// The rows of cboAction.
namespace rows {
constexpr std::int32_t none = 0;
constexpr std::int32_t issueCommand = 1;
constexpr std::int32_t runMacro = 2;
constexpr std::int32_t stopMacro = 3;
constexpr std::int32_t clearAlarms = 4;
constexpr std::int32_t openView = 5;
} // namespace rows

struct ActionRow {
    std::string_view shown;
    std::string_view channelCaption = "Channel:";
};

constexpr ActionRow actionRows[] = {
    {""},
    {"cboSite cboUnit cboChannel"},
    {"cboSite cboUnit cboChannel", "Macro:"},
    {"cboSite cboUnit cboChannel", "Macro:"},
    {"cboSite"},
    {"txtCustView"},
};

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

frmCVCmdDataSource::frmCVCmdDataSource(PageHost& host)
    : SourcePageOn("frmCVCmdDataSource", host),
      cboAction(SourceList("cboAction", "lblAction", "Action:", settingWords, [this] { cboAction_Click(); })),
      cboSite(SourceList("cboSite", "lblSite", "Site:", settingWords, [this] { cboSite_Click(); })),
      cboUnit(SourceList("cboUnit", "lblUnit", "Unit:", settingWords, [this] { cboUnit_Click(); })),
      cboChannel(SourceList("cboChannel", "lblChannel", "Channel:", settingWords, [this] { cboChannel_Click(); })),
      lblChannel(On<Label>("lblChannel")), txtCustView(MakeViewPath()),
      chkCtrlClick(Make<CheckBox>("chkCtrlClick", "Require Ctrl + Click"))
{
    UseLists(cboSite, cboUnit, cboChannel, cboChannel);
    BoxLine(chkCtrlClick);
    HandleBound(chkCtrlClick.Click, "chkCtrlClick",
                [this] { Write(&clsCmdDataSource::CtrlClick, chkCtrlClick.Value()); });
    HandleBound(txtCustView.Change, "txtCustView", [this] { Write(&clsCmdDataSource::Site, txtCustView.Text()); });
    BrowseFile("txtCustView", "cmdBrwsViews", "Custom View Files (*.qvw)|*.qvw");
    ArrangeLines();
    ShowOnly("cboAction");
    Unbind();
}

// Its caption has a name, as those of the lists have.
TextBox& frmCVCmdDataSource::MakeViewPath()
{
    auto& caption = Make<Label>("lblCustView", "View:", LabelRole::Caption);
    auto& path = Make<TextBox>("txtCustView");
    auto& browse = Make<Button>("cmdBrwsViews", "...");
    CaptionedLine(caption, path, &browse);
    WarningLine(path);
    AddRow("txtCustView", {&caption, &path, &browse});
    return path;
}

void frmCVCmdDataSource::FillLists()
{
    for (ListBox* list : {&cboSite, &cboUnit, &cboChannel, &cboAction}) {
        list->Clear();
    }
    for (const char* item :
         {"No Click-Action", "Issue Command", "Run Macro", "Stop Macro", "Clear Alarms", "Open Custom View"}) {
        cboAction.AddItem(item);
    }
}

void frmCVCmdDataSource::SetOwner(Element& element, std::string_view /*array*/)
{
    Bind(&element.ClickAction);
    FillLists();
    chkCtrlClick.Value(Source().CtrlClick());
    ShowSource();
}

void frmCVCmdDataSource::ShowSource()
{
    const std::string site = Source().Site();
    const std::int32_t unit = Source().Unit();
    const std::int32_t channel = Source().Channel();
    const auto chain = [&](std::int32_t row, std::int32_t index) {
        cboAction.ListIndex(row);
        if (SelectSite(site)) {
            ShowSetting(cboUnit, &clsCmdDataSource::Unit, unit, unit);
            ShowSetting(cboChannel, &clsCmdDataSource::Channel, index, channel);
        }
    };
    switch (Source().CmdDataType()) {
    case actions::none:
        return cboAction.ListIndex(rows::none);
    case actions::commandA:
        return chain(rows::issueCommand, (channel - 1) * 2);
    case actions::commandB:
        return chain(rows::issueCommand, (channel - 1) * 2 + 1);
    case actions::runMacro:
        return chain(rows::runMacro, channel - 1);
    case actions::stopMacro: // the click writes the row behind it: the macro moves up each time it is shown
        return chain(rows::stopMacro, channel);
    case actions::stopAllMacros:
        return chain(rows::stopMacro, 0);
    case actions::clearSiteAlarms:
        cboAction.ListIndex(rows::clearAlarms);
        SelectSite(site);
        return;
    case actions::clearUnitAlarms: // "All Units" stands first, so this is the row of the unit before
        cboAction.ListIndex(rows::clearAlarms);
        if (SelectSite(site)) {
            ShowSetting(cboUnit, &clsCmdDataSource::Unit, unit, unit);
        }
        return;
    case actions::clearAllAlarms:
        cboAction.ListIndex(rows::clearAlarms);
        return cboSite.ListIndex(0);
    case actions::openView:
        cboAction.ListIndex(rows::openView);
        return txtCustView.Text(site);
    default:
        return;
    }
}

void frmCVCmdDataSource::cboAction_Click()
{
    const std::int32_t index = cboAction.ListIndex();
    const ActionRow& row = actionRows[index < 0 ? 0 : index];
    lblChannel.Set(&Label::Caption, std::string(row.channelCaption));
    ShowOnly("cboAction " + std::string(row.shown));
    if (index <= rows::none) {
        Write(&clsCmdDataSource::CmdDataType, actions::none);
    } else if (index == rows::openView) {
        Write(&clsCmdDataSource::CmdDataType, actions::openView);
    } else {
        FillSites(index == rows::clearAlarms);
    }
}

void frmCVCmdDataSource::cboSite_Click()
{
    switch (cboAction.ListIndex()) {
    case rows::issueCommand:
    case rows::runMacro:
    case rows::stopMacro:
        return FillUnits(false);
    case rows::clearAlarms:
        return WriteAllSites(&clsCmdDataSource::CmdDataType, actions::clearAllAlarms);
    default:
        return;
    }
}

void frmCVCmdDataSource::cboUnit_Click()
{
    switch (cboAction.ListIndex()) {
    case rows::issueCommand:
        return FillCommandChannels();
    case rows::runMacro:
    case rows::stopMacro:
        return FillMacros();
    case rows::clearAlarms:
        return WriteUnitOrAll(&clsCmdDataSource::CmdDataType, actions::clearSiteAlarms, actions::clearUnitAlarms);
    default:
        return;
    }
}

void frmCVCmdDataSource::cboChannel_Click()
{
    const std::int32_t index = cboChannel.ListIndex();
    WritePlace();
    const auto write = [&](std::int32_t action, std::int32_t channel) {
        Write(&clsCmdDataSource::CmdDataType, action);
        Write(&clsCmdDataSource::Channel, Narrow<std::uint8_t>(channel));
    };
    switch (cboAction.ListIndex()) {
    case rows::issueCommand:
        return index % 2 != 0 ? write(actions::commandB, (index + 1) / 2) : write(actions::commandA, (index + 2) / 2);
    case rows::runMacro:
        return write(actions::runMacro, index + 1);
    case rows::stopMacro:
        // The first row means all macros of the unit, although it reads as macro 1.
        return index == 0 ? Write(&clsCmdDataSource::CmdDataType, actions::stopAllMacros)
                          : write(actions::stopMacro, index + 1);
    default:
        return;
    }
}

} // namespace

std::unique_ptr<Page> NewCmdDataSourcePage(PageHost& host)
{
    return std::make_unique<frmCVCmdDataSource>(host);
}

} // namespace quor
