#pragma once
// What the pages of the data sources have in common: a chain of lists, filled from the server and its catalogue as the
// choice narrows. Setting a list's index runs its handler, and the pages rely on it.

#include "pages/page.h"

#include <string>
#include <string_view>
#include <vector>

namespace quor {

class TeskServer;
class TeskUnit;

class SourcePage : public Page {
protected:
    SourcePage(std::string name, PageHost& host);

    // A list with a named label, which shows and hides with it.
    ListBox& SourceList(std::string_view name, std::string_view label, std::string_view caption, std::string_view words,
                        Work click);
    // Of the lists and other rows that are named, those in the text of names show and the others hide.
    void ShowOnly(std::string_view names);
    void ShowRow(std::string_view name, bool visible);
    // A row that ShowOnly knows, beside the lists: its name, and the controls that belong to it.
    void AddRow(std::string_view name, std::vector<Control*> controls);

    // The sites of the catalogue, read anew, in the catalogue's order; clears the lists that follow from the site.
    void FillSites(bool withAll);
    void AddSites();
    // Chooses the row that is exactly this name; without one, none. True if a site is chosen then.
    bool SelectSite(const std::string& name);
    void FillUnits(bool withAll);
    void FillCommandChannels();
    void FillStatusChannels();
    // For a unit as it is numbered in the source.
    void FillMeterChannels(std::uint8_t unit);
    void FillMacros();

    // Which controls the procedures fill; each page says it once.
    void UseLists(ListBox& site, ListBox& unit, ListBox& channel, ListBox& macro);

    std::string SiteText() const;
    std::uint8_t UnitIndex() const; // fails with 6 where no unit is chosen

private:
    struct Row {
        std::string name;
        std::vector<Control*> controls;
    };

    // The chosen unit, or null if the server has none of that number at the chosen site.
    TeskUnit* ChosenUnit(std::int32_t number) const;

    std::vector<Row> m_rows;
    ListBox* m_site = nullptr;
    ListBox* m_unit = nullptr;
    ListBox* m_channel = nullptr;
    ListBox* m_macro = nullptr;
};

} // namespace quor
