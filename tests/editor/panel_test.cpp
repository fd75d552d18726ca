#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"

namespace quor {
namespace {

struct ThePanel : EditorFixture {
    std::string calls;
    Subscription listening = main.Panel().Called.Subscribe([this](const PageCall& call) {
        calls += std::string(call.verb) + " " + std::string(call.page) + (call.element.empty() ? "" : " *") + "\n";
    });

    std::string Tabs() const
    {
        std::string tabs;
        for (const Band* child : main.abViewEdit().BandOf("bndObjProps").Children()) {
            tabs += child->Visible() ? child->Caption + "|" : "";
        }
        return tabs + main.abViewEdit().BandOf("bndObjProps").CurrentChild()->Caption;
    }
};

TEST_F(ThePanel, BindsThePagesOfTheSelectionInTheirOrder)
{
    std::string cleared;
    for (const char* page :
         {"General", "MeterText", "MeterAngle", "MeterLinear", "LEDRound", "LEDRect", "StatusLabel", "BlnPic", "CmdLED",
          "Command", "Picture", "Label", "CmdDataSource", "MtrDataSource", "BlnDataSource", "MeterProps"}) {
        cleared += "ClearOwner frmCV" + std::string(page) + "\n";
    }
    EXPECT_EQ(Tabs(), "Custom View Settings|Custom View Settings");
    calls.clear();
    const auto& led = Insert<clsLEDRound>();
    EXPECT_EQ(Tabs(), "General|LED (Round)|Status Data|Action|General");
    EXPECT_EQ(calls, cleared + "SetOwner frmCVGeneral *\nSetOwner frmCVLEDRound *\nSetOwner frmCVCmdDataSource *\n"
                               "SetOwner frmCVBlnDataSource *\n");
    calls.clear();
    Select(led);
    EXPECT_EQ(calls, "ClearOwner frmCVGeneral\nSetOwner frmCVGeneral *\n") << "the same element refreshes one page";
    calls.clear();
    main.ReleaseControl();
    EXPECT_EQ(calls, cleared + "SetProps frmCVViewProps\n");
    EXPECT_EQ(Tabs(), "Custom View Settings|Custom View Settings");
}

TEST_F(ThePanel, ComesToTheFrontWithTheGeneralPageAtEachSelection)
{
    Insert<clsLEDRound>();
    main.abViewEdit().BandOf("bndObjProps").SetCurrentChild("ctlLEDRound");
    Insert<clsLEDRound>();
    EXPECT_EQ(main.abViewEdit().BandOf("bndObjProps").CurrentChild()->Name, "prpGeneral");
}

} // namespace
} // namespace quor
