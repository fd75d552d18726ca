#pragma once
// Menus, toolbars, docked panels and the status bar as one control: bands that hold tools, both found by name.

#include "base/keyed_list.h"
#include "forms/bar_tables.h"
#include "forms/look.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace quor {

class Bars;
class Form;

// A tool. Its state is one and the same in all its places.
class BarTool final : public Looks<BarTool> {
public:
    explicit BarTool(const ToolRow& row);

    const int Id;
    const std::string Name;
    const std::string Shortcut; // "Ctrl+N", or empty
    const KeyScope Keys;
    const std::string Opens; // the name of the band that it opens as a menu, or empty

    Property<"Enabled", bool> Enabled{true};
    Property<"Checked", bool> Checked;
    Property<"Visible", bool> Visible{true};
    Property<"Caption", std::string> Caption; // '&' marks the letter for the keyboard
    Property<"Tip", std::string> Tip;
    Property<"Category", std::string> Category;
    Property<"HostedForm", Form*> HostedForm{nullptr}; // shown in the tool's place; stays its owner's

    bool IsSeparator() const noexcept { return Name == separatorTool; }

    std::uint32_t Uses() const noexcept { return m_uses; } // clicks of the user, over all runs
    void SetUses(std::uint32_t uses) noexcept { m_uses = uses; }

private:
    std::uint32_t m_uses = 0;
};

// A tool's place in a band; it may have words of its own.
class BandTool {
public:
    explicit BandTool(BarTool& tool) : m_tool(&tool) {}

    BarTool& Tool() const noexcept { return *m_tool; }
    const std::string& Caption() const noexcept { return m_tool->Caption(); }
    const std::string& Tip() const noexcept { return m_tip ? *m_tip : m_tool->Tip(); }
    const std::string& Category() const noexcept { return m_category ? *m_category : m_tool->Category(); }

    void SetTip(std::string tip) { m_tip = std::move(tip); }
    void SetCategory(std::string category) { m_category = std::move(category); }

private:
    BarTool* m_tool;
    std::optional<std::string> m_tip;
    std::optional<std::string> m_category;
};

class Band final : public Shown {
public:
    Band(Bars& bars, const BandRow& row);

    const std::string Name;
    const std::string Caption;
    const BandKind Kind;

    // Bars, panels and children are visible from the start, menus and popups never are: they pop up.
    Property<"Visible", bool> Visible;

    // But for child bands, Bars::BandOpen or Bars::BandClose follows a change.
    void Set(Property<"Visible", bool> Band::*property, bool visible);

    // Where the user gave it another one: the width of a panel, in pixels; else 0.
    Property<"Extent", std::int32_t> Extent;
    static constexpr std::int32_t mostExtent = 16'383;
    void SetExtent(std::int32_t extent); // 380 out of 0 to mostExtent

    const std::vector<BandTool>& Tools() const noexcept { return m_tools; }
    BandTool& Tool(std::string_view name); // 5 if it isn't in this band

    // These in this order instead. A place that goes and comes again keeps its own words. 5 for an unknown name.
    void SetTools(std::span<const std::string> names);

    const std::vector<Band*>& Children() const noexcept { return m_children; }
    Band& Child(std::string_view name) const; // 5 if it isn't a child of this band

    // The child in front, null if none has been set.
    Band* CurrentChild() const noexcept { return m_current(); }
    void SetCurrentChild(std::string_view name); // 5 if it isn't a child of this band

    // Has it drawn anew.
    void Refresh() { Changed.Raise(); }

private:
    friend class Bars;
    Bars* m_bars;
    std::vector<BandTool> m_tools;
    std::vector<BandTool> m_removed;
    std::vector<Band*> m_children;
    Property<"CurrentChild", Band*> m_current{nullptr};
};

class Bars final : public Shown {
public:
    template <class Row> explicit Bars(const BarTables<Row>& tables)
    {
        for (const Row& row : tables.tools) {
            AddTool(row);
        }
        for (const BandRow& row : tables.bands) {
            AddBand(row);
        }
    }

    Event<const std::string&> ToolClick; // the tool's name
    Event<const std::string&> BandOpen;  // the band's name
    Event<const std::string&> BandClose; // the band's name
    Event<std::int16_t> KeyDown;         // a key's code, while the bars have the keyboard
    Event<bool&> QueryClose;             // set to true to cancel

    // For whoever draws the bars: Changed asks for the layout.
    Event<Band&> Popup;
    Event<> Focused;

    // In the order of the tables. Names that aren't there fail with 5.
    const KeyedList<std::unique_ptr<BarTool>>& Tools() const noexcept { return m_tools; }
    const KeyedList<std::unique_ptr<Band>>& Bands() const noexcept { return m_bands; }
    BarTool& Tool(std::string_view name) const { return *m_tools.Item(name); }
    Band& BandOf(std::string_view name) const { return *m_bands.Item(name); }

    // What can stand on a toolbar: the tools of the menus that open no menu of their own, in the order of the menus.
    std::vector<BarTool*> Commands() const;

    void RecalcLayout() { Changed.Raise(); }
    void Focus() { Focused.Raise(); }
    void PopupBand(std::string_view name) { Popup.Raise(BandOf(name)); }

    // As the user does, which counts as a use: nothing on a tool that is disabled or hidden.
    void Click(std::string_view name);

    // True unless a handler of QueryClose cancels.
    bool AskClose();

private:
    void AddTool(const ToolRow& row);
    void AddBand(const BandRow& row);

    KeyedList<std::unique_ptr<BarTool>> m_tools;
    KeyedList<std::unique_ptr<Band>> m_bands;
};

} // namespace quor
