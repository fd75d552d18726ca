#include "forms/bars.h"

#include "base/failure.h"
#include "forms/bars_layout.h"
#include "tests/test.h"

namespace {

constexpr ToolRow toolRows[] = {
    {1, "miFile", "&File", "", "Menus", ToolStart::Enabled, "", "bndFile"},
    {24, "miNew", "&New", "", "File", ToolStart::Enabled, "Ctrl+N"},
    {47, "miOpen", "&Open", "", "File"},
    {55, "miPaste", "&Paste", "", "Edit", ToolStart::Disabled},
    {52, "miToolbox", "&Toolbox", "View Toolbox", "View", ToolStart::Checked},
    {20, "tlGeneral", "General", "", "PropertyDialogs"},
    {21, "tlSep", "", "", ""},
};
constexpr BandRow bandRows[] = {
    {"bndMenu", "Main Menu", "miFile", BandKind::MenuBar},
    {"bndFile", "&File", "miNew miOpen tlSep miPaste"},
    {"bndToolBar", "Toolbar", "miNew tlSep miPaste", BandKind::ToolBar},
    {"bndPopup", "Tool Popup", "miPaste", BandKind::Popup},
    {"bndProps", "Properties", "", BandKind::Panel},
    {"prpGeneral", "General", "tlGeneral", BandKind::Child, "bndProps"},
    {"prpView", "View", "", BandKind::Child, "bndProps"},
    {"bndStatus", "Status", "", BandKind::StatusBar},
};
constexpr BarTables<ToolRow> tables(toolRows, bandRows);

TEST(Bars, ShareAToolsStateBetweenItsPlacesButNotTheWordsOfACopy)
{
    Bars bars(tables);
    EXPECT_EQ(bars.Tool("miNew").Tip(), "New");
    EXPECT_EQ(bars.Tool("miToolbox").Tip(), "View Toolbox");
    EXPECT_TRUE(bars.Tool("miToolbox").Checked());
    BandTool& copy = bars.BandOf("bndPopup").Tool("miPaste");
    const BandTool& original = bars.BandOf("bndFile").Tool("miPaste");
    EXPECT_FALSE(original.Tool().Enabled());
    copy.SetTip("Pate");
    copy.Tool().Set(&BarTool::Enabled, true);
    EXPECT_TRUE(original.Tool().Enabled());
    EXPECT_EQ(copy.Tip() + original.Tip(), "PatePaste");
    bars.Tool("MIPASTE").Set(&BarTool::Caption, "Put");
    EXPECT_EQ(original.Caption(), "Put");
}

TEST(Bars, TellWhatAUserReachesAndOfBandsOnlyAChange)
{
    Bars bars(tables);
    std::vector<std::string> heard;
    const auto noting = [&](const char* what) {
        return [&heard, what](const std::string& name) { heard.push_back(what + name); };
    };
    const Subscription subscriptions[] = {
        bars.ToolClick.Subscribe(noting("click ")), bars.BandOpen.Subscribe(noting("open ")),
        bars.BandClose.Subscribe(noting("close ")),
        bars.Popup.Subscribe([&](Band& band) { heard.push_back("popup " + band.Name); })};
    bars.Click("miPaste");
    bars.Tool("miPaste").Set(&BarTool::Enabled, true);
    bars.Click("miPaste");
    bars.Tool("miPaste").Set(&BarTool::Visible, false);
    bars.Click("miPaste");
    Band& panel = bars.BandOf("bndProps");
    panel.Set(&Band::Visible, true);
    panel.Set(&Band::Visible, false);
    panel.Set(&Band::Visible, true);
    panel.Child("prpView").Set(&Band::Visible, false);
    bars.PopupBand("bndPopup");
    EXPECT_EQ(heard, (std::vector<std::string>{"click miPaste", "close bndProps", "open bndProps", "popup bndPopup"}));
}

TEST(Bars, FailForNamesThatAreNotThere)
{
    Bars bars(tables);
    Band& panel = bars.BandOf("bndProps");
    panel.SetCurrentChild("prpView");
    Band& bar = bars.BandOf("bndToolBar");
    const std::function<void()> calls[] = {
        [&] { bars.Tool("miNone"); },
        [&] { bars.Click("miNone"); },
        [&] { bars.PopupBand("miNew"); },
        [&] { bars.BandOf("bndPopup").Tool("miNew"); },
        [&] { panel.SetCurrentChild("bndFile"); },
        [&] {
            bar.SetTools(std::vector<std::string>{"miNew", "miNone"});
        },
    };
    for (const auto& call : calls) {
        EXPECT_EQ(FailureOf(call), failures::invalidCall);
    }
    EXPECT_EQ(panel.CurrentChild()->Caption, "View");
    EXPECT_EQ(bar.Tools().size(), 3U);
}

TEST(Bars, KeepTheWordsOfAPlaceThatGoesAndComesAgain)
{
    Bars bars(tables);
    Band& bar = bars.BandOf("bndToolBar");
    bar.Tool("miPaste").SetTip("Pate");
    int changes = 0;
    const Subscription changed = bar.Changed.Subscribe([&] { ++changes; });
    bar.SetTools(std::vector<std::string>{"tlSep", "miNew"});
    bar.SetTools(std::vector<std::string>{"miOpen", "miPaste"});
    EXPECT_EQ(bar.Tool("miPaste").Tip(), "Pate");
    EXPECT_EQ(changes, 2);
}

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
    std::vector<std::string> damaged{"\n",
                                     "end\n",
                                     std::string(1, '\0'),
                                     "quor bars layout 2\nend\n",
                                     "quor bars usage 1\nend\n",
                                     "quor bars layout 1\r\nend\r\n",
                                     "quor bars layout 1\nend\nend\n",
                                     builtIn + "x",
                                     std::string(70'000, 'a'),
                                     With("band bndStatus hidden 0\n" + std::string(70'000, '\n'))};
    for (const std::string& line : {std::string(), std::string("bar bndToolBar shown 0"), std::string("band"),
                                    std::string("band  shown 0"), manyTools, manyBands}) {
        damaged.push_back(With(line));
    }
    for (const char* rest :
         {"", " maybe 0", " shown", " shown x", " shown -1", " shown 16384", " shown 99999999999999999999",
          " shown 0x1 miNew", " hidden 0  miNew", " hidden 0\nband bndToolBar shown 0"}) {
        damaged.push_back(With(std::string("band bndToolBar") + rest));
    }
    for (std::size_t length = 0; length < builtIn.size(); ++length) {
        damaged.push_back(builtIn.substr(0, length));
    }
    for (const std::string& text : damaged) {
        SCOPED_TRACE(text.substr(0, 60));
        files.PutText("a", text);
        EXPECT_EQ(FailureOf([&] { LoadLayout(bars, files, "a"); }), failures::invalidCall);
        EXPECT_EQ(TextOf(bars), builtIn);
    }
    EXPECT_EQ(FailureOf([&] { LoadLayout(bars, files, "none"); }), failures::fileNotFound);
}

TEST_F(BarsInFiles, CountTheUsesOfTheirTools)
{
    bars.Click("miNew");
    bars.Click("miNew");
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
        EXPECT_EQ(FailureOf([&] { LoadUsage(others, files, "u"); }), failures::invalidCall) << line;
        EXPECT_EQ(others.Tool("miNew").Uses(), 2U);
    }
    files.PutText("u", "quor bars usage 1\ntool miNone 9\nend\n");
    LoadUsage(others, files, "u");
    EXPECT_EQ(others.Tool("miNew").Uses(), 2U);
}

} // namespace
