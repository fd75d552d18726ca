#pragma once
// What the pages of the data sources have in common: a chain of lists, filled from the server and its catalogue as the
// choice narrows. Setting a list's index runs its handler, and the pages rely on it.

#include "binding/server_arrays.h"
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

    // As Handle, but while the page isn't bound the work isn't done.
    void HandleBound(Event<>& event, std::string_view control, Work work, std::string_view words = settingWords);
    virtual bool IsBound() const noexcept = 0;
    void EnableControls(bool enabled) const;

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
    // For a unit as it is numbered in the source, 255 for none.
    void FillMeterChannels(std::uint8_t unit);
    void FillMacros();

    // Which controls the procedures fill; each page says it once.
    void UseLists(ListBox& site, ListBox& unit, ListBox& channel, ListBox& macro);

    std::string SiteText() const;
    std::uint8_t UnitIndex() const;                              // fails with 6 where no unit is chosen
    bool IsAllSites() const { return m_site->ListIndex() == 0; } // of lists that begin with all
    bool IsAllUnits() const { return m_unit->ListIndex() == 0; }

private:
    struct Row {
        std::string name;
        std::vector<Control*> controls;
    };

    // How a channel is called in the list, and how if it has no name.
    struct ChannelRow {
        std::string (*name)(const ServerTable<std::string>& table, std::int32_t channel);
        const char* otherwise;
    };

    void FillChannels(std::int32_t number, std::initializer_list<ChannelRow> rows);

    // The chosen unit, or null if the server has none of that number at the chosen site.
    TeskUnit* ChosenUnit(std::int32_t number) const;

    std::vector<Row> m_rows;
    ListBox* m_site = nullptr;
    ListBox* m_unit = nullptr;
    ListBox* m_channel = nullptr;
    ListBox* m_macro = nullptr;
};

// The page of one class of data source. While it isn't bound to one, it writes nothing, reports nothing, and its
// controls are disabled.
template <class S> class SourcePageOn : public SourcePage {
public:
    void ClearOwner() override { Unbind(); }

protected:
    using SourcePage::SourcePage;

    // When all rows are there.
    void Unbind()
    {
        m_source = nullptr;
        EnableControls(false);
    }

    // Fails with 13 for an element without such a source.
    void Bind(S* source)
    {
        if (source == nullptr) {
            throw Failure(failures::typeMismatch);
        }
        m_source = source;
        EnableControls(true);
    }

    bool IsBound() const noexcept override { return m_source != nullptr; }
    S& Source() const noexcept { return *m_source; }

    template <class C, class P> void Write(P C::*property, typename P::Value value)
    {
        m_source->Set(property, std::move(value));
    }

    void WritePlace()
    {
        Write(&S::Site, SiteText());
        Write(&S::Unit, UnitIndex());
    }

    // "All Sites" is all that there is to choose, and is written at once; a site has units, and all of them.
    template <class P> void WriteAllSites(P S::*type, std::int32_t allSites)
    {
        ShowRow("cboUnit", !IsAllSites());
        if (IsAllSites()) {
            Write(type, allSites);
        } else {
            FillUnits(true);
        }
    }

    template <class P> void WriteUnitOrAll(P S::*type, std::int32_t allUnits, std::int32_t oneUnit)
    {
        Write(type, IsAllUnits() ? allUnits : oneUnit);
        Write(&S::Site, SiteText());
        if (!IsAllUnits()) {
            Write(&S::Unit, Narrow<std::uint8_t>(UnitIndex() - 1));
        }
    }

    // Shows a stored number of the source as a row.
    template <class C, class P>
    static void ShowSetting(ListBox& list, P C::* /*property*/, std::int32_t row, std::int32_t stored)
    {
        ShowStored(list, std::string(S::name) + "." + std::string(P::name), row, stored);
    }

private:
    S* m_source = nullptr;
};

} // namespace quor
