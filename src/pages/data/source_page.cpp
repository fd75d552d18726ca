#include "pages/data/source_page.h"

#include "binding/catalog.h"
#include "binding/live.h"
#include "binding/server.h"
#include "binding/sites.h"
#include "forms/bar_tables.h"

#include <algorithm>
#include <array>

namespace quor {

namespace {

constexpr std::int32_t channels = 16;
constexpr std::int32_t macros = 32;
constexpr std::size_t shownUnits = 16; // the voice interface never shows

std::string Numbered(std::int32_t number, const std::string& text, const std::string& otherwise)
{
    const std::string shown = text.empty() ? otherwise : text;
    return std::to_string(number) + (shown.empty() ? "" : " - " + shown);
}

template <std::int32_t Column> std::string Field(const ServerTable<std::string>& table, std::int32_t channel)
{
    return table.At(channel, Column);
}

// Both texts of a status channel, or the one that there is.
std::string StatusTexts(const ServerTable<std::string>& table, std::int32_t channel)
{
    constexpr std::string_view between = " / ";
    std::string text = table.At(channel, channel_fields::statusText1) + std::string(between) +
                       table.At(channel, channel_fields::statusText2);
    if (text.starts_with(between)) {
        text.erase(0, between.size());
    }
    if (text.ends_with(between)) {
        text.erase(text.size() - between.size());
    }
    return text;
}

bool HasName(std::string_view names, std::string_view name)
{
    while (!names.empty()) {
        if (TakeName(names) == name) {
            return true;
        }
    }
    return false;
}

} // namespace

SourcePage::SourcePage(std::string name, PageHost& host) : Page(std::move(name), host) {}

void SourcePage::UseLists(ListBox& site, ListBox& unit, ListBox& channel, ListBox& macro)
{
    m_site = &site;
    m_unit = &unit;
    m_channel = &channel;
    m_macro = &macro;
}

ListBox& SourcePage::SourceList(std::string_view name, std::string_view label, std::string_view caption,
                                std::string_view words, Work click)
{
    auto& shown = Make<Label>(std::string(label), std::string(caption), LabelRole::Caption);
    auto& list = Make<ListBox>(std::string(name));
    CaptionedLine(shown, list);
    AddRow(name, {&shown, &list});
    HandleBound(list.Click, name, std::move(click), words);
    return list;
}

void SourcePage::HandleBound(Event<>& event, std::string_view control, Work work, std::string_view words)
{
    Handle(
        event, control,
        [this, work = std::move(work)] {
            if (IsBound()) {
                work();
            }
        },
        words);
}

void SourcePage::EnableControls(bool enabled) const
{
    for (const std::unique_ptr<Control>& control : Controls()) {
        control->Set(&Control::Enabled, enabled);
    }
}

void SourcePage::AddRow(std::string_view name, std::vector<Control*> controls)
{
    m_rows.push_back({std::string(name), std::move(controls)});
}

void SourcePage::ShowOnly(std::string_view names)
{
    for (const Row& row : m_rows) {
        ShowRow(row.name, HasName(names, row.name));
    }
}

void SourcePage::ShowRow(std::string_view name, bool visible)
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&](const Row& each) { return each.name == name; });
    if (row == m_rows.end()) {
        throw Failure(failures::invalidCall);
    }
    for (Control* control : row->controls) {
        control->Set(&Control::Visible, visible);
    }
}

void SourcePage::FillSites(bool withAll)
{
    m_site->Clear();
    m_unit->Clear();
    m_channel->Clear();
    if (withAll) {
        m_site->AddItem("All Sites");
    }
    AddSites();
}

void SourcePage::AddSites()
{
    TeskSiteCatalog* catalog = m_host.PageLive().Catalog;
    if (catalog == nullptr) {
        return;
    }
    TeskSiteList sites;
    catalog->ReloadSites();
    catalog->GetSites(sites);
    for (TeskSiteEntry& site : sites) {
        m_site->AddItem(std::move(site.SiteName));
    }
}

bool SourcePage::SelectSite(const std::string& name)
{
    const std::vector<std::string>& items = m_site->Items();
    const auto found = std::find(items.begin(), items.end(), name);
    if (found != items.end()) {
        m_site->ListIndex(static_cast<std::int32_t>(found - items.begin()));
    }
    return m_site->ListIndex() >= 0;
}

void SourcePage::FillUnits(bool withAll)
{
    m_unit->Clear();
    if (withAll) {
        m_unit->AddItem("All Units");
    }
    std::array<std::string, shownUnits> names;
    for (std::size_t number = 0; number < shownUnits; ++number) {
        names[number] = "Unit " + std::to_string(number);
    }
    TeskServer* server = m_host.PageLive().Server;
    if (SiteExists(server, SiteText())) {
        server->Sites().Item(SiteText()).Units().ForEach([&](TeskUnit& unit) {
            if (unit.UnitNum() < shownUnits) {
                names[unit.UnitNum()] = unit.UnitName(); // an empty name makes an empty row
            }
        });
    }
    for (std::string& name : names) {
        m_unit->AddItem(std::move(name));
    }
}

TeskUnit* SourcePage::ChosenUnit(std::int32_t number) const
{
    TeskServer* server = m_host.PageLive().Server;
    if (number < 0 || number > 255 || !UnitExists(server, SiteText(), static_cast<std::uint8_t>(number))) {
        return nullptr;
    }
    return &server->Sites().Item(SiteText()).Units().Item(static_cast<std::uint8_t>(number));
}

void SourcePage::FillChannels(std::int32_t number, std::initializer_list<ChannelRow> rows)
{
    m_channel->Clear();
    const TeskUnit* unit = ChosenUnit(number);
    const ServerTable<std::string> table =
        unit == nullptr ? ServerTable<std::string>() : unit->UnitConfig().ChannelTable();
    for (std::int32_t channel = 1; channel <= channels; ++channel) {
        for (const ChannelRow& row : rows) {
            m_channel->AddItem(
                Numbered(channel, unit == nullptr ? std::string() : row.name(table, channel), row.otherwise));
        }
    }
}

void SourcePage::FillCommandChannels()
{
    FillChannels(m_unit->ListIndex(), {{Field<channel_fields::commandA>, "A"}, {Field<channel_fields::commandB>, "B"}});
}

void SourcePage::FillStatusChannels()
{
    FillChannels(m_unit->ListIndex(), {{StatusTexts, ""}});
}

void SourcePage::FillMeterChannels(std::uint8_t number)
{
    FillChannels(number, {{Field<channel_fields::meterLabel>, ""}});
}

void SourcePage::FillMacros()
{
    m_macro->Clear();
    const TeskUnit* unit = ChosenUnit(m_unit->ListIndex());
    const ServerArray<std::string> names =
        unit == nullptr ? ServerArray<std::string>() : unit->UnitConfig().MacroConfig().MacroNameList();
    for (std::int32_t macro = 1; macro <= macros; ++macro) {
        const std::string name = unit == nullptr ? std::string() : names.FromLower(macro - 1);
        m_macro->AddItem(Numbered(macro, name, "Macro " + std::to_string(macro)));
    }
}

std::string SourcePage::SiteText() const
{
    const std::int32_t index = m_site->ListIndex();
    return index < 0 ? std::string() : m_site->Items().at(static_cast<std::size_t>(index));
}

std::uint8_t SourcePage::UnitIndex() const
{
    return Narrow<std::uint8_t>(m_unit->ListIndex());
}

} // namespace quor
