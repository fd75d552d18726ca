#include "forms/bars_layout.h"

#include "base/failure.h"
#include "forms/bars.h"
#include "tests/test.h"

namespace {

constexpr ToolRow toolRows[] = {
    {1, "miFile", "&File", "", "Menus", ToolStart::Enabled, "", "bndFile"},
    {24, "miNew", "&New", "", "File"},
    {47, "miOpen", "&Open", "", "File"},
    {55, "miPaste", "&Paste", "", "Edit"},
    {20, "tlGeneral", "General", "", "PropertyDialogs"},
    {21, "tlSep", "", "", ""},
};
constexpr BandRow bandRows[] = {
    {"bndMenu", "Main Menu", "miFile", BandKind::MenuBar},
    {"bndFile", "&File", "miNew miOpen tlSep miPaste"},
    {"bndToolBar", "Toolbar", "miNew tlSep miPaste", BandKind::ToolBar},
    {"bndProps", "Properties", "", BandKind::Panel},
    {"prpGeneral", "General", "tlGeneral", BandKind::Child, "bndProps"},
    {"bndStatus", "Status", "", BandKind::StatusBar},
};
constexpr BarTables<ToolRow> tables(toolRows, bandRows);

const std::string builtIn = "quor bars layout 1\n"
                            "band bndToolBar shown 0 miNew tlSep miPaste\n"
                            "band bndProps shown 0\n"
                            "band bndStatus shown 0\n"
                            "end\n";

std::string With(const std::string& line)
{
    return "quor bars layout 1\n" + line + "\nend\n";
}

std::string TextOf(const Bars& bars)
{
    return LayoutText(LayoutOf(bars));
}

std::int32_t NumberOf(const std::function<void()>& body)
{
    try {
        body();
        return 0;
    } catch (const Failure& failure) {
        return failure.Number();
    }
}

struct BarsInFiles : testing::Test {
    Bars bars{tables};
    FakeFiles files;
};

TEST_F(BarsInFiles, ComeBackAsTheyWereLeft)
{
    EXPECT_EQ(TextOf(bars), builtIn);
    const std::vector<std::string> tools{"tlSep", "miOpen", "miNew", "tlSep"};
    bars.BandOf("bndToolBar").SetTools(tools);
    bars.BandOf("bndProps").SetExtent(412);
    bars.BandOf("bndStatus").Set(&Band::Visible, false);
    SaveLayout(bars, files, "a");
    Bars others(tables);
    LoadLayout(others, files, "a");
    EXPECT_EQ(TextOf(others), "quor bars layout 1\n"
                              "band bndToolBar shown 0 tlSep miOpen miNew tlSep\n"
                              "band bndProps shown 412\n"
                              "band bndStatus hidden 0\n"
                              "end\n");
    EXPECT_EQ(TextOf(others), TextOf(bars));
}

TEST_F(BarsInFiles, LeaveOutWhatTheyDoNotKnowAndWhatMayNotStandThere)
{
    files.PutText("a", "quor bars layout 1\n"
                       "band bndToolBar shown 0 miNew miNone tlGeneral miFile miNew MINEW tlSep tlSep miOpen\n"
                       "band bndNone hidden 3 miNew\n"
                       "band bndMenu hidden 0\n"
                       "band prpGeneral hidden 0\n"
                       "band bndProps hidden 0 miNew\n"
                       "end\n");
    LoadLayout(bars, files, "a");
    EXPECT_EQ(TextOf(bars), "quor bars layout 1\n"
                            "band bndToolBar shown 0 miNew tlSep tlSep miOpen\n"
                            "band bndProps hidden 0\n"
                            "band bndStatus shown 0\n"
                            "end\n");
    EXPECT_TRUE(bars.BandOf("bndMenu").Visible());
    EXPECT_TRUE(bars.BandOf("prpGeneral").Visible());
}

TEST_F(BarsInFiles, StayAsTheyAreWhereTheFileIsNoWholeLayout)
{
    std::string manyTools = "band bndToolBar shown 0";
    std::string manyBands;
    for (int i = 0; i < 257; ++i) {
        manyTools += " tlSep";
        manyBands += "band b" + std::to_string(i) + " shown 0\n";
    }
    const std::string damaged[] = {
        "",
        "\n",
        "end\n",
        std::string(1, '\0'),
        "quor bars layout 2\nend\n",
        "quor bars usage 1\nend\n",
        "quor bars layout 1\r\nend\r\n",
        "quor bars layout 1\nend",
        "quor bars layout 1\nend\nend\n",
        builtIn + "x",
        With(""),
        With("bar bndToolBar shown 0"),
        With("band"),
        With("band  shown 0"),
        With("band bndToolBar"),
        With("band bndToolBar maybe 0"),
        With("band bndToolBar shown"),
        With("band bndToolBar shown x"),
        With("band bndToolBar shown -1"),
        With("band bndToolBar shown 16384"),
        With("band bndToolBar shown 99999999999999999999"),
        With("band bndToolBar shown 0x1 miNew"),
        With("band bndToolBar hidden 0  miNew"),
        With("band bndStatus hidden 0\nband bndStatus shown 0"),
        With(manyTools),
        With(manyBands),
        std::string(70'000, 'a'),
        With("band bndStatus hidden 0\n" + std::string(70'000, '\n')),
    };
    for (const std::string& text : damaged) {
        SCOPED_TRACE(text.substr(0, 60));
        files.PutText("a", text);
        EXPECT_EQ(NumberOf([&] { LoadLayout(bars, files, "a"); }), failures::invalidCall);
        EXPECT_EQ(TextOf(bars), builtIn);
    }
    EXPECT_EQ(NumberOf([&] { LoadLayout(bars, files, "none"); }), failures::fileNotFound);
}

TEST_F(BarsInFiles, AreNeverTakenFromAFileThatWasCut)
{
    bars.BandOf("bndStatus").Set(&Band::Visible, false);
    const std::string whole = TextOf(bars);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        Bars others(tables);
        files.PutText("a", whole.substr(0, length));
        EXPECT_EQ(NumberOf([&] { LoadLayout(others, files, "a"); }), failures::invalidCall) << length;
        EXPECT_EQ(TextOf(others), builtIn);
    }
}

TEST_F(BarsInFiles, CountTheUsesOfTheirTools)
{
    bars.Click("miNew");
    bars.Click("miNew");
    bars.Tool("miPaste").Set(&BarTool::Enabled, false);
    bars.Click("miPaste");
    bars.Tool("miOpen").SetUses(UINT32_MAX);
    bars.Click("miOpen");
    SaveUsage(bars, files, "u");
    EXPECT_EQ(files.Text("u"), "quor bars usage 1\ntool miNew 2\ntool miOpen 4294967295\nend\n");
    Bars others(tables);
    LoadUsage(others, files, "u");
    EXPECT_EQ(others.Tool("miNew").Uses(), 2U);
    EXPECT_EQ(others.Tool("miOpen").Uses(), UINT32_MAX);

    for (const char* line :
         {"tool miNew", "tool miNew -1", "tool miNew 4294967296", "tool miNew 1 2", "tool", "use miNew 1", ""}) {
        files.PutText("u", std::string("quor bars usage 1\ntool miNew 9\n") + line + "\nend\n");
        EXPECT_EQ(NumberOf([&] { LoadUsage(others, files, "u"); }), failures::invalidCall) << line;
        EXPECT_EQ(others.Tool("miNew").Uses(), 2U);
    }
    files.PutText("u", "quor bars usage 1\ntool miNone 9\nend\n");
    LoadUsage(others, files, "u");
    EXPECT_EQ(others.Tool("miNew").Uses(), 2U);
}

TEST_F(BarsInFiles, KeepTheWordsOfAPlaceThatGoesAndComesAgain)
{
    Band& bar = bars.BandOf("bndToolBar");
    bar.Tool("miPaste").SetTip("Pate");
    int changes = 0;
    const Subscription changed = bar.Changed.Subscribe([&] { ++changes; });
    bar.SetTools(std::vector<std::string>{"tlSep", "miNew"});
    bar.SetTools(std::vector<std::string>{"miOpen", "miPaste"});
    EXPECT_EQ(bar.Tool("miPaste").Tip(), "Pate");
    EXPECT_EQ(bar.Tools().size(), 2U);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(NumberOf([&] { bar.SetTools(std::vector<std::string>{"miNew", "miNone"}); }), failures::invalidCall);
    EXPECT_EQ(bar.Tools().size(), 2U);
}

} // namespace
