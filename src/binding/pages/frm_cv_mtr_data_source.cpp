#include "binding/pages/frm_cv_mtr_data_source.h"

#include "elements/element.h"

namespace quor {

namespace {
constexpr std::uint8_t noUnit = 255;
}

frmCVMtrDataSource::frmCVMtrDataSource(PageHost& host)
    : SourcePage("frmCVMtrDataSource", host),
      cboSite(SourceList("cboSite", "lblSite", "Site:", settingWords, [this] { cboSite_Click(); })),
      cboUnit(SourceList("cboUnit", "lblUnit", "Unit:", settingWords, [this] { cboUnit_Click(); })),
      cboChan(SourceList(
          "cboChan", "lblChan", "Channel:", settingWords,
          [this] { Source().Set(&clsMtrDataSource::Channel, Narrow<std::uint8_t>(cboChan.ListIndex() + 1)); })),
      cboDec(SourceList("cboDec", "lblDec", "Dec. Places:", settingWords, [this] {
          Source().Set(&clsMtrDataSource::DecimalPlaces, Narrow<std::int16_t>(cboDec.ListIndex()));
      }))
{
    UseLists(cboSite, cboUnit, cboChan, cboChan);
    ArrangeLines();
}

clsMtrDataSource& frmCVMtrDataSource::Source() const
{
    if (!m_hasOwner || m_source == nullptr) {
        throw Failure(failures::objectNotSet);
    }
    return *m_source;
}

void frmCVMtrDataSource::SetOwner(Element& element, std::string_view /*array*/)
{
    clsMtrDataSource* source = element.MeterSource();
    if (source == nullptr) {
        throw Failure(failures::typeMismatch);
    }
    m_source = source;
    m_hasOwner = true;
    const std::string site = source->Site();
    const std::int32_t unit = source->Unit();
    const std::int32_t channel = source->Channel();
    for (ListBox* list : {&cboSite, &cboUnit, &cboChan, &cboDec}) {
        list->Clear();
    }
    for (const char* item : {"0", "1", "2", "3", "4"}) {
        cboDec.AddItem(item);
    }
    AddSites();
    if (SelectSite(site)) {
        cboUnit.ListIndex(unit);
        cboChan.ListIndex(channel - 1);
    }
    cboDec.ListIndex(source->DecimalPlaces());
}

void frmCVMtrDataSource::cboSite_Click()
{
    // Choosing none writes unit 255 and channel 0 before the site is written.
    cboUnit.ListIndex(-1);
    cboChan.ListIndex(-1);
    cboChan.Clear();
    FillUnits(false);
    Source().Set(&clsMtrDataSource::Site, SiteText());
}

void frmCVMtrDataSource::cboUnit_Click()
{
    cboChan.ListIndex(-1);
    const std::int32_t index = cboUnit.ListIndex();
    const std::uint8_t unit = index < 0 ? noUnit : Narrow<std::uint8_t>(index);
    FillMeterChannels(unit);
    Source().Set(&clsMtrDataSource::Unit, unit);
}

} // namespace quor
