// What may happen in the middle of something else.

#include "elements/label.h"
#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

struct TheMainForm : EditorFixture {
    static constexpr Color green{0x0000FF00};
    int ends = 0;
    Subscription ending = main.Unloaded.Subscribe([this] { ++ends; });

    Area PlaceOf(const Element& element) const
    {
        return {element.ObjLeft(), element.ObjTop(), element.ObjWidth(), element.ObjHeight()};
    }

    void ExpectTheGroundOfANewView()
    {
        EXPECT_EQ(main.ssScroll().Picture(), nullptr);
        EXPECT_EQ(main.ssScroll().BackColor(), colors::buttonFace);
        EXPECT_EQ(main.View().BGColor(), colors::buttonFace) << "a save writes what is shown";
        EXPECT_EQ(main.View().BGPicture(), "");
    }
};

TEST_F(TheMainForm, EndsOnceWhenTheSessionEndsDuringItsQuestion)
{
    Insert<clsLEDRound>();
    boxes.answers = {BoxAnswer::No};
    const Subscription session = boxes.Shown.Subscribe([this](const ShownBox&) { main.Close(CloseReason::System); });
    main.Close(CloseReason::User);
    EXPECT_EQ(ends, 1);
}

TEST_F(TheMainForm, FindsAChangeAlsoWhereScratchFilesMakeTrouble)
{
    Insert<clsLEDRound>();
    const std::int32_t checksum = main.GetCurrentChecksum();
    const std::vector<std::string> before = files.Paths();
    files.spareFolder = "spare";
    for (const char* call : {"open", "write"}) { // the folder for temporary files is full
        files.planned.Plan(call, 1, 75);
        EXPECT_EQ(main.GetCurrentChecksum(), checksum) << call;
        EXPECT_EQ(files.Paths(), before) << call;
    }
    for (const int nth : {1, 2}) { // what isn't needed any more can't be deleted
        files.planned.Plan("delete", nth, 70);
        if (nth == 1) {
            reporter.Announce(Ref("clsCustView.SaveFile"));
        }
        EXPECT_EQ(main.GetCurrentChecksum(), checksum) << nth;
    }
    EXPECT_TRUE(reporter.reports.empty());
}

TEST_F(TheMainForm, SurvivesTheEndOfTheSessionInTheMiddleOfALoad)
{
    Insert<clsLEDRound>();
    Insert<clsLEDRound>();
    ASSERT_TRUE(main.SaveView("a.qvw"));
    trace.atAStep = [this] { main.Close(CloseReason::TaskManager); };
    main.OpenView("a.qvw");
    EXPECT_EQ(ends, 1);
}

// Two lamps over a picture on green: beside a file that is none, and in a file where both have one name.
TEST_F(TheMainForm, ShowsNothingOfTheOldViewNorOfOneThatFailsToLoad)
{
    files.Put("back.bmp", {1});
    Insert<clsLEDRound>();
    Insert<clsLEDRound>();
    main.View().Set(&clsCustView::BGPicture, std::string("back.bmp"));
    main.View().Set(&clsCustView::BGColor, green);
    ASSERT_TRUE(main.SaveView("a.qvw"));
    files.PutText("b.qvw", "no view");
    main.OpenView("b.qvw");
    ExpectTheGroundOfANewView();

    FakeFiles::Bytes bytes = files.Get("a.qvw");
    const std::size_t lastLetter = bytes.size() - 6;
    ASSERT_EQ(bytes[lastLetter], '2');
    bytes[lastLetter] = '1';
    --bytes[bytes.size() - 4]; // the checksum
    files.Put("a.qvw", bytes);
    boxes.answers = {BoxAnswer::No};
    reporter.Announce(Ref("clsCustView.LoadFile"));
    main.OpenView("a.qvw");
    ASSERT_FALSE(reporter.reports.empty());
    EXPECT_EQ(reporter.reports.back().number, failures::keyInUse);
    ExpectTheGroundOfANewView();
    EXPECT_EQ(HitTest(main.ssScroll(), {}, 200, 200).widget, nullptr);
}

TEST_F(TheMainForm, SizesAtThePlaceInTheViewWhenTheCanvasScrollsMeanwhile)
{
    auto& led = Insert<clsLEDRound>();
    led.Set(&Element::ObjLeft, 3000);
    led.Set(&Element::ObjTop, 3000);
    main.ssScroll().ScrollTo(1500, 750);
    main.Mouse().Press({CanvasTarget::What::Handle, nullptr, 7}, MouseButton::Left, 0, 0);
    main.Mouse().SizeBy(45, 45);
    main.ssScroll().ScrollTo(0, 0);
    main.Mouse().SizeBy(45, 45);
    main.Mouse().Release({}, MouseButton::Left);
    EXPECT_EQ(PlaceOf(led), (Area{3000, 3000, 300, 300}));
}

TEST_F(TheMainForm, KeepsAPastedLabelThatCannotBeShownAndItsName)
{
    auto& label = Insert<clsLabel>();
    EXPECT_THROW(label.Set(&clsLabel::CaptionAlignment, 0x10000), Failure) << "the widget's has 16 bits";
    main.CopyControl();
    reporter.Announce(Ref("frmMain.PasteControl"));
    main.PasteControl();
    EXPECT_EQ(reporter.reports.back().message, "Unable to paste the control from the clipboard.");
    EXPECT_EQ(main.View().CtlOrder().Count(), 2U);
    EXPECT_FALSE(main.View().CtlOrder().Item("Label 2")->MyControl()->Visible());

    label.Set(&clsLabel::Caption, std::string(32'768, 'x'));
    reporter.Announce(Ref("frmMain.CopyControl"));
    main.CopyControl();
    EXPECT_EQ(reporter.reports.back().message, "Unable to copy the selected control to the clipboard.");
    main.ReleaseControl();
    reporter.Announce(Ref("frmMain.ReorderControl"));
    main.ReorderControl(true);
    EXPECT_EQ(reporter.reports.back().message, "Unable to re-order the selected control.");
}

TEST_F(TheMainForm, RepaintsAllForPlacesThatAreNoPlaces)
{
    auto& led = Insert<clsLEDRound>();
    Area repainted;
    const Subscription listening = main.ssScroll().Changed.Subscribe([&](const Area& area) { repainted = area; });
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float beyond = std::numeric_limits<float>::infinity();
    for (const float place : {none, beyond, -beyond, 3e38F, -3e38F}) {
        SCOPED_TRACE(place);
        {
            const CanvasHold hold(main.ssScroll());
            led.Set(&Element::ObjLeft, place);
            main.ssScroll().Invalidate({10, 10, 20, 20});
        }
        EXPECT_TRUE(Contains(repainted, 10, 10) && Contains(repainted, 29, 29));
        main.PositionHandles(*led.MyControl());
        main.SetStatusCaption(led.MyControl());
    }
}

} // namespace
