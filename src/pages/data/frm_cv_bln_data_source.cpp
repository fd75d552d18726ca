#include "binding/bln_data_source.h"
#include "elements/element.h"
#include "pages/data/data_pages.h"
#include "pages/data/source_page.h"

namespace quor {

namespace {

// The rows of cboDataType.
namespace rows {
constexpr std::int32_t none = 0;
constexpr std::int32_t statusChannel = 1;
constexpr std::int32_t commandState = 2;
constexpr std::int32_t macroStatus = 3;
constexpr std::int32_t meterLimit = 4;
constexpr std::int32_t alarm = 5;
constexpr std::int32_t statusMute = 6;
constexpr std::int32_t meterMute = 7;
constexpr std::int32_t sitePrimary = 8;
constexpr std::int32_t siteBackup = 9;
constexpr std::int32_t localMode = 10;
constexpr std::int32_t captures = 11;
} // namespace rows

// What shows for each row, and whether the sites begin with all of them.
struct TypeRow {
    std::string_view shown;
    bool withAllSites = false;
};

constexpr TypeRow typeRows[] = {
    {""},
    {"cboSite cboUnit cboChan"},
    {"cboSite cboUnit cboChan"},
    {"cboSite cboUnit cboMacro"},
    {"cboSite cboUnit cboChan cboLimitType"},
    {"cboSite", true},
    {"cboSite cboUnit cboChan"},
    {"cboSite cboUnit cboChan"},
    {"cboSite"},
    {"cboSite"},
    {"cboSite cboUnit"},
    {"cboSite cboUnit"},
};

// BlnDataType by the row of cboLimitType.
constexpr std::int32_t limitTypes[] = {watch::outsideLimits, watch::belowSecondLower, watch::belowFirstLower,
                                       watch::aboveFirstUpper, watch::aboveSecondUpper};

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

frmCVBlnDataSource::frmCVBlnDataSource(PageHost& host)
    : SourcePageOn("frmCVBlnDataSource", host),
      cboDataType(SourceList("cboDataType", "lblDataType", "Status Data:", "Unable to set status data.",
                             [this] { cboDataType_Click(); })),
      cboSite(SourceList("cboSite", "lblSite", "Site:", "Unable to set site.", [this] { cboSite_Click(); })),
      cboUnit(SourceList("cboUnit", "lblUnit", "Unit:", "Unable to set unit.", [this] { cboUnit_Click(); })),
      cboChan(SourceList("cboChan", "lblChan", "Channel:", "Unable to set channel.", [this] { cboChan_Click(); })),
      cboLimitType(SourceList("cboLimitType", "lblLimitType", "Limit Type:", "Unable to set limit type.",
                              [this] { cboLimitType_Click(); })),
      cboMacro(SourceList("cboMacro", "lblMacro", "Macro:", "Unable to set macro.", [this] { cboMacro_Click(); })),
      optTmpStatus(FramedOptions("fraShowStatus", "Status in Designer", "optTmpStatus", {"On", "Off"}))
{
    UseLists(cboSite, cboUnit, cboChan, cboMacro);
    HandleBound(
        optTmpStatus.Click, "optTmpStatus", [this] { optTmpStatus_Click(); }, "Unable to set status.");
    ArrangeLines();
    ShowOnly("cboDataType");
    Unbind();
}

void frmCVBlnDataSource::FillLists()
{
    for (ListBox* list : {&cboSite, &cboUnit, &cboChan, &cboDataType, &cboLimitType}) {
        list->Clear();
    }
    for (const char* item :
         {"None", "Status Channel", "Command State", "Macro Status", "Meter Limit", "Alarm", "Status Mute",
          "Meter Mute", "Site Connected (Primary)", "Site Connected (Backup)", "Local Mode", "Captures Pending"}) {
        cboDataType.AddItem(item);
    }
    for (const char* item : {"Any", "Second Lower", "First Lower", "First Upper", "Second Upper"}) {
        cboLimitType.AddItem(item);
    }
}

void frmCVBlnDataSource::SetOwner(Element& element, std::string_view /*array*/)
{
    Bind(element.StatusSource());
    FillLists();
    optTmpStatus.Index(Source().blnValue() ? 0 : 1);
    ShowSource();
}

void frmCVBlnDataSource::ShowSource()
{
    const std::string site = Source().Site();
    const std::int32_t unit = Source().Unit();
    const std::int32_t channel = Source().Channel();
    const std::int32_t type = Source().BlnDataType();
    const auto show = [&](std::int32_t row) {
        cboDataType.ListIndex(row);
        return SelectSite(site);
    };
    const auto showUnit = [&](std::int32_t row) {
        const bool hasSite = show(row);
        if (hasSite) {
            ShowSetting(cboUnit, &clsBlnDataSource::Unit, unit, unit);
        }
        return hasSite;
    };
    const auto chain = [&](std::int32_t row, ListBox& list, std::int32_t index) {
        if (showUnit(row)) {
            ShowSetting(list, &clsBlnDataSource::Channel, index, channel);
        }
    };
    switch (type) {
    case watch::nothing:
        return cboDataType.ListIndex(rows::none);
    case watch::belowSecondLower:
    case watch::belowFirstLower:
    case watch::aboveFirstUpper:
    case watch::aboveSecondUpper:
        chain(rows::meterLimit, cboChan, channel - 1);
        return cboLimitType.ListIndex(type); // even without a site
    case watch::outsideLimits:
        chain(rows::meterLimit, cboChan, channel - 1);
        return cboLimitType.ListIndex(0);
    case watch::primaryPath:
        show(rows::sitePrimary);
        return;
    case watch::backupPath:
        show(rows::siteBackup);
        return;
    case watch::siteAlarms:
        show(rows::alarm);
        return;
    case watch::unitAlarms: // "All Units" stands first, so this is the row of the unit before
        showUnit(rows::alarm);
        return;
    case watch::anyAlarms:
        cboDataType.ListIndex(rows::alarm);
        return cboSite.ListIndex(0);
    case watch::commandA:
        return chain(rows::commandState, cboChan, channel * 2 - 2);
    case watch::commandB:
        return chain(rows::commandState, cboChan, channel * 2 - 1);
    case watch::meterMute:
        return chain(rows::meterMute, cboChan, channel - 1);
    case watch::statusMute:
        return chain(rows::statusMute, cboChan, channel - 1);
    case watch::localMode:
        showUnit(rows::localMode);
        return;
    case watch::capturesPending:
        showUnit(rows::captures);
        return;
    case watch::macroRunning:
        return chain(rows::macroStatus, cboMacro, channel - 1);
    case watch::statusOn:
        return chain(rows::statusChannel, cboChan, channel - 1);
    default:
        return;
    }
}

void frmCVBlnDataSource::cboDataType_Click()
{
    const std::int32_t index = cboDataType.ListIndex();
    const TypeRow& row = typeRows[index < 0 ? 0 : index];
    ShowOnly("cboDataType " + std::string(row.shown));
    if (index <= rows::none) {
        Write(&clsBlnDataSource::BlnDataType, watch::nothing);
    } else {
        FillSites(row.withAllSites);
    }
}

void frmCVBlnDataSource::cboSite_Click()
{
    switch (cboDataType.ListIndex()) {
    case rows::alarm:
        return WriteAllSites(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    case rows::sitePrimary:
    case rows::siteBackup:
        Write(&clsBlnDataSource::Site, SiteText());
        Write(&clsBlnDataSource::BlnDataType,
              cboDataType.ListIndex() == rows::sitePrimary ? watch::primaryPath : watch::backupPath);
        break;
    case rows::none:
        break;
    default:
        FillUnits(false);
        break;
    }
}

void frmCVBlnDataSource::cboUnit_Click()
{
    switch (cboDataType.ListIndex()) {
    case rows::statusChannel:
    case rows::statusMute:
        return FillStatusChannels();
    case rows::commandState:
        return FillCommandChannels();
    case rows::macroStatus:
        return FillMacros();
    case rows::meterLimit:
    case rows::meterMute:
        return FillMeterChannels(UnitIndex());
    case rows::alarm:
        return WriteUnitOrAll(&clsBlnDataSource::BlnDataType, watch::siteAlarms, watch::unitAlarms);
    case rows::localMode:
    case rows::captures:
        Write(&clsBlnDataSource::BlnDataType,
              cboDataType.ListIndex() == rows::localMode ? watch::localMode : watch::capturesPending);
        return WritePlace();
    default:
        return;
    }
}

void frmCVBlnDataSource::cboChan_Click()
{
    const std::int32_t index = cboChan.ListIndex();
    const auto write = [&](std::int32_t type, std::int32_t channel) {
        Write(&clsBlnDataSource::Channel, Narrow<std::uint8_t>(channel));
        Write(&clsBlnDataSource::BlnDataType, type);
    };
    if (cboDataType.ListIndex() == rows::meterLimit) {
        return; // the limit's own list writes the channel
    }
    WritePlace();
    switch (cboDataType.ListIndex()) {
    case rows::statusChannel:
        return write(watch::statusOn, index + 1);
    case rows::commandState:
        return index % 2 != 0 ? write(watch::commandB, (index + 1) / 2) : write(watch::commandA, (index + 2) / 2);
    case rows::statusMute:
        return write(watch::statusMute, index + 1);
    case rows::meterMute:
        return write(watch::meterMute, index + 1);
    default:
        return;
    }
}

void frmCVBlnDataSource::cboLimitType_Click()
{
    WritePlace();
    Write(&clsBlnDataSource::Channel, Narrow<std::uint8_t>(cboChan.ListIndex() + 1));
    const std::int32_t index = cboLimitType.ListIndex();
    if (index >= 0) {
        Write(&clsBlnDataSource::BlnDataType, limitTypes[index]);
    }
}

void frmCVBlnDataSource::cboMacro_Click()
{
    Write(&clsBlnDataSource::BlnDataType, watch::macroRunning);
    WritePlace();
    Write(&clsBlnDataSource::Channel, Narrow<std::uint8_t>(cboMacro.ListIndex() + 1));
}

void frmCVBlnDataSource::optTmpStatus_Click()
{
    Source().ForceValue(optTmpStatus.Index() == 0, false);
}

} // namespace

std::unique_ptr<Page> NewBlnDataSourcePage(PageHost& host)
{
    return std::make_unique<frmCVBlnDataSource>(host);
}

} // namespace quor
