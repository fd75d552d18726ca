#pragma once
// Menus and bars as tables of tools and of bands, checked at compile time.

#include <span>
#include <string_view>

namespace quor {

// Where the keyboard has to be for a tool's shortcut to act.
enum class KeyScope { Window, Canvas };

enum class ToolStart { Enabled, Disabled, Checked };

// A program may derive its row from this one, to say more about a tool.
struct ToolRow {
    int id;
    std::string_view name;
    std::string_view caption;
    std::string_view tip; // empty: the caption without its ampersand
    std::string_view category;
    ToolStart start = ToolStart::Enabled;
    std::string_view shortcut{}; // "Ctrl+N"
    std::string_view opens{};    // the band that it opens as a menu
    KeyScope keys = KeyScope::Window;
};

enum class BandKind { Menu, MenuBar, ToolBar, StatusBar, Popup, Panel, Child };

struct BandRow {
    std::string_view name;
    std::string_view caption;
    std::string_view tools; // names with blanks between them; separatorTool is a separator
    BandKind kind = BandKind::Menu;
    std::string_view parent{}; // of a child band: the band above it in the table that shows it as a tab
};

inline constexpr std::string_view separatorTool = "tlSep";

// Takes the first name off a text of names.
constexpr std::string_view TakeName(std::string_view& names)
{
    const std::size_t blank = names.find(' ');
    const std::string_view name = names.substr(0, blank);
    names.remove_prefix(blank == std::string_view::npos ? names.size() : blank + 1);
    return name;
}

// Both tables. Names that no row has, and names or numbers that two rows have, don't compile.
template <class Row> struct BarTables {
    std::span<const Row> tools;
    std::span<const BandRow> bands;

    consteval BarTables(std::span<const Row> toolRows, std::span<const BandRow> bandRows)
        : tools(toolRows), bands(bandRows)
    {
        for (const Row& tool : tools) {
            Require(Count(tools, tool.name) == 1, "two tools of one name");
            Require(tool.opens.empty() || Count(bands, tool.opens) == 1, "a tool that opens an unknown band");
            for (const Row& other : tools) {
                Require(&other == &tool || other.id != tool.id, "two tools of one number");
            }
        }
        for (const BandRow& band : bands) {
            Require(Count(bands, band.name) == 1, "two bands of one name");
            Require((band.kind == BandKind::Child) == !band.parent.empty(), "a child band and its parent");
            Require(band.parent.empty() || Count(bands.first(Position(band)), band.parent) == 1, "an unknown parent");
            for (std::string_view names = band.tools; !names.empty();) {
                Require(Count(tools, TakeName(names)) == 1, "an unknown tool in a band");
            }
        }
    }

private:
    consteval std::size_t Position(const BandRow& band) const { return static_cast<std::size_t>(&band - bands.data()); }

    static consteval void Require(bool holds, const char* fault)
    {
        if (!holds) {
            throw fault;
        }
    }

    template <class Rows> static consteval int Count(Rows rows, std::string_view name)
    {
        int count = 0;
        for (const auto& row : rows) {
            count += row.name == name ? 1 : 0;
        }
        return count;
    }
};

} // namespace quor
