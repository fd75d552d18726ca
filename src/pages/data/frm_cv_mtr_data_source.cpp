#include "binding/mtr_data_source.h"
#include "elements/element.h"
#include "pages/data/data_pages.h"
#include "pages/data/source_page.h"

namespace quor {

namespace {
constexpr std::uint8_t noUnit = 255;

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

frmCVMtrDataSource::frmCVMtrDataSource(PageHost& host)
    : SourcePageOn("frmCVMtrDataSource", host),
      cboSite(SourceList("cboSite", "lblSite", "Site:", settingWords, [this] { cboSite_Click(); })),
      cboUnit(SourceList("cboUnit", "lblUnit", "Unit:", settingWords, [this] { cboUnit_Click(); })),
      cboChan(SourceList("cboChan", "lblChan", "Channel:", settingWords,
                         [this] { Write(&clsMtrDataSource::Channel, Narrow<std::uint8_t>(cboChan.ListIndex() + 1)); })),
      cboDec(SourceList("cboDec", "lblDec", "Dec. Places:", settingWords,
                        [this] { Write(&clsMtrDataSource::DecimalPlaces, Narrow<std::int16_t>(cboDec.ListIndex())); }))
{
    UseLists(cboSite, cboUnit, cboChan, cboChan);
    ArrangeLines();
    Unbind();
}

void frmCVMtrDataSource::SetOwner(Element& element, std::string_view /*array*/)
{
    Bind(element.MeterSource());
    const std::string site = Source().Site();
    const std::int32_t unit = Source().Unit();
    const std::int32_t channel = Source().Channel();
    for (ListBox* list : {&cboSite, &cboUnit, &cboChan, &cboDec}) {
        list->Clear();
    }
    for (const char* item : {"0", "1", "2", "3", "4"}) {
        cboDec.AddItem(item);
    }
    AddSites();
    if (SelectSite(site)) {
        ShowSetting(cboUnit, &clsMtrDataSource::Unit, unit, unit);
        ShowSetting(cboChan, &clsMtrDataSource::Channel, channel - 1, channel);
    }
    ShowSetting(cboDec, &clsMtrDataSource::DecimalPlaces, Source().DecimalPlaces(), Source().DecimalPlaces());
}

void frmCVMtrDataSource::cboSite_Click()
{
    // Choosing none writes unit 255 and channel 0 before the site is written.
    cboUnit.ListIndex(-1);
    cboChan.ListIndex(-1);
    cboChan.Clear();
    FillUnits(false);
    Write(&clsMtrDataSource::Site, SiteText());
}

void frmCVMtrDataSource::cboUnit_Click()
{
    cboChan.ListIndex(-1);
    const std::int32_t index = cboUnit.ListIndex();
    const std::uint8_t unit = index < 0 ? noUnit : Narrow<std::uint8_t>(index);
    FillMeterChannels(unit);
    Write(&clsMtrDataSource::Unit, unit);
}

} // namespace

std::unique_ptr<Page> NewMtrDataSourcePage(PageHost& host)
{
    return std::make_unique<frmCVMtrDataSource>(host);
}

} // namespace quor
