#include "forms/bars.h"

#include "base/failure.h"
#include "tests/test.h"

namespace {

constexpr ToolRow toolRows[] = {
    {1, "miFile", "&File", "", "Menus", ToolStart::Enabled, "", "bndFile"},
    {24, "miNew", "&New", "", "File", ToolStart::Enabled, "Ctrl+N"},
    {55, "miPaste", "&Paste", "", "Edit", ToolStart::Disabled},
    {52, "miToolbox", "&Toolbox", "View Toolbox", "View", ToolStart::Checked},
    {20, "tlGeneral", "General", "", "PropertyDialogs"},
    {21, "tlSep", "", "", ""},
};
constexpr BandRow bandRows[] = {
    {"bndMenu", "Main Menu", "miFile", BandKind::MenuBar},
    {"bndFile", "&File", "miNew tlSep miPaste"},
    {"bndToolBar", "Toolbar", "miNew miPaste tlSep miToolbox", BandKind::ToolBar},
    {"bndPopup", "Tool Popup", "miPaste", BandKind::Popup},
    {"bndProps", "Properties", "", BandKind::Panel},
    {"prpGeneral", "General", "tlGeneral", BandKind::Child, "bndProps"},
    {"prpView", "View", "", BandKind::Child, "bndProps"},
};
constexpr BarTables<ToolRow> tables(toolRows, bandRows);

std::int32_t NumberOf(const std::function<void()>& body)
{
    try {
        body();
        return 0;
    } catch (const Failure& failure) {
        return failure.Number();
    }
}

// Everything that the bars raise, in order.
struct Listener {
    explicit Listener(Bars& bars)
    {
        const auto noting = [this](const char* what) {
            return [this, what](const std::string& name) { heard.push_back(what + name); };
        };
        subscriptions.push_back(bars.ToolClick.Subscribe(noting("click ")));
        subscriptions.push_back(bars.BandOpen.Subscribe(noting("open ")));
        subscriptions.push_back(bars.BandClose.Subscribe(noting("close ")));
        subscriptions.push_back(bars.Popup.Subscribe([this](Band& band) { heard.push_back("popup " + band.Name); }));
    }
    std::vector<std::string> heard;
    std::vector<Subscription> subscriptions;
};

TEST(Bars, StartAsTheirTablesSay)
{
    const Bars bars(tables);
    EXPECT_EQ(bars.Tool("miNew").Tip(), "New");
    EXPECT_EQ(bars.Tool("miToolbox").Tip(), "View Toolbox");
    EXPECT_TRUE(bars.Tool("miToolbox").Checked());
    EXPECT_TRUE(bars.Tool("miToolbox").Enabled());
    EXPECT_FALSE(bars.Tool("miPaste").Enabled());
    EXPECT_EQ(bars.Tool("miFile").Opens, "bndFile");
    std::string names;
    for (const BandTool& place : bars.BandOf("bndToolBar").Tools()) {
        names += place.Tool().IsSeparator() ? "| " : place.Tool().Name + " ";
    }
    EXPECT_EQ(names, "miNew miPaste | miToolbox ");
    EXPECT_TRUE(bars.BandOf("bndToolBar").Visible());
    EXPECT_FALSE(bars.BandOf("bndPopup").Visible());
}

TEST(Bars, ShareAToolsStateBetweenItsPlacesButNotTheWordsOfACopy)
{
    Bars bars(tables);
    bars.BandOf("bndPopup").Tool("miPaste").SetTip("Pate");
    bars.BandOf("bndPopup").Tool("miPaste").Tool().Set(&BarTool::Enabled, true);
    EXPECT_TRUE(bars.BandOf("bndFile").Tool("miPaste").Tool().Enabled());
    EXPECT_EQ(bars.BandOf("bndPopup").Tool("miPaste").Tip(), "Pate");
    EXPECT_EQ(bars.BandOf("bndFile").Tool("miPaste").Tip(), "Paste");
    bars.Tool("miPaste").Set(&BarTool::Caption, "Put");
    EXPECT_EQ(bars.BandOf("bndFile").Tool("miPaste").Caption(), "Put");
}

TEST(Bars, ClickOnlyWhatAUserCanReach)
{
    Bars bars(tables);
    const Listener listener(bars);
    bars.Click("miPaste");
    bars.Tool("miPaste").Set(&BarTool::Enabled, true);
    bars.Click("miPaste");
    bars.Tool("miPaste").Set(&BarTool::Visible, false);
    bars.Click("miPaste");
    EXPECT_EQ(listener.heard, std::vector<std::string>{"click miPaste"});
}

TEST(Bars, TellOfBandsThatOpenAndCloseOnlyWhereThatIsAChange)
{
    Bars bars(tables);
    const Listener listener(bars);
    Band& panel = bars.BandOf("bndProps");
    panel.Set(&Band::Visible, true);
    panel.Set(&Band::Visible, false);
    panel.Set(&Band::Visible, true);
    panel.Child("prpView").Set(&Band::Visible, false);
    bars.PopupBand("bndPopup");
    EXPECT_EQ(listener.heard, (std::vector<std::string>{"close bndProps", "open bndProps", "popup bndPopup"}));
}

TEST(Bars, BringAChildBandToTheFront)
{
    Bars bars(tables);
    Band& panel = bars.BandOf("bndProps");
    ASSERT_EQ(panel.Children().size(), 2U);
    EXPECT_EQ(panel.CurrentChild(), nullptr);
    panel.SetCurrentChild("prpView");
    EXPECT_EQ(panel.CurrentChild()->Caption, "View");
    EXPECT_EQ(NumberOf([&] { panel.SetCurrentChild("bndFile"); }), failures::invalidCall);
    EXPECT_EQ(panel.CurrentChild()->Caption, "View");
}

TEST(Bars, FailWithTheNumberOfAnUnknownKeyForNamesThatAreNotThere)
{
    Bars bars(tables);
    EXPECT_EQ(NumberOf([&] { bars.Tool("miNone"); }), failures::invalidCall);
    EXPECT_EQ(NumberOf([&] { bars.Click("miNone"); }), failures::invalidCall);
    EXPECT_EQ(NumberOf([&] { bars.PopupBand("miNew"); }), failures::invalidCall);
    EXPECT_EQ(NumberOf([&] { bars.BandOf("bndPopup").Tool("miNew"); }), failures::invalidCall);
    EXPECT_EQ(bars.Tool("MINEW").Id, 24);
}

TEST(Bars, MayBeClosedUnlessAHandlerCancels)
{
    Bars bars(tables);
    EXPECT_TRUE(bars.AskClose());
    const Subscription refusal = bars.QueryClose.Subscribe([](bool& cancel) { cancel = true; });
    EXPECT_FALSE(bars.AskClose());
}

} // namespace
