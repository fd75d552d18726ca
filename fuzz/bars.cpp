// The two files of the bars: a layout that is read is written as the same one, and bars that took it keep it; uses that
// are read are written as uses that can be read.

#include "forms/bars.h"
#include "base/failure.h"
#include "forms/bars_layout.h"
#include "fuzz/harness.h"
#include "tests/support/fake_files.h"

namespace quor {
namespace {

constexpr ToolRow toolRows[] = {
    {1, "miFile", "&File", "", "Menus", ToolStart::Enabled, "", "bndFile"},
    {2, "miNew", "&New", "", "File"},
    {3, "miOpen", "&Open", "", "File"},
    {4, "tlGeneral", "General", "", "PropertyDialogs"},
    {5, "tlSep", "", "", ""},
};
constexpr BandRow bandRows[] = {
    {"bndMenu", "Main Menu", "miFile", BandKind::MenuBar},
    {"bndFile", "&File", "miNew miOpen"},
    {"bndToolBar", "Toolbar", "miNew tlSep miOpen", BandKind::ToolBar},
    {"bndProps", "Properties", "", BandKind::Panel},
    {"prpGeneral", "General", "tlGeneral", BandKind::Child, "bndProps"},
    {"bndStatus", "Status", "", BandKind::StatusBar},
};
constexpr BarTables<ToolRow> tables(toolRows, bandRows);

void TryLayout(std::string_view text)
{
    BarsLayout layout;
    try {
        layout = ParseLayout(text);
    } catch (const Failure&) {
        return;
    }
    Require(ParseLayout(LayoutText(layout)) == layout, "a layout is written as the same one");
    Bars bars(tables);
    ApplyLayout(bars, layout);
    const BarsLayout taken = LayoutOf(bars);
    Require(ParseLayout(LayoutText(taken)) == taken, "the layout of bars can be read");
    ApplyLayout(bars, taken);
    Require(LayoutOf(bars) == taken, "bars keep a layout that is theirs");
}

void TryUsage(std::string_view text)
{
    FakeFiles files;
    files.PutText("usage", text);
    Bars bars(tables);
    try {
        LoadUsage(bars, files, "usage");
    } catch (const Failure&) {
        return;
    }
    SaveUsage(bars, files, "usage");
    const std::string saved = files.Text("usage");
    LoadUsage(bars, files, "usage");
    SaveUsage(bars, files, "usage");
    Require(files.Text("usage") == saved, "uses are saved as they were read");
}

} // namespace
} // namespace quor

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    quor::TryLayout(quor::TextOf(data, size));
    quor::TryUsage(quor::TextOf(data, size));
    return 0;
}
