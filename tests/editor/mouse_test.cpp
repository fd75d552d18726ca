// What a press on the canvas meets.

#include "elements/label.h"
#include "elements/led_round.h"
#include "tests/editor/editor_fixture.h"
#include "tests/test.h"

namespace {

struct TheCanvas : EditorFixture {
    static constexpr Area shown{0, 0, 15'000, 9'000};

    clsLEDRound& Lamp(const Area& area)
    {
        auto& led = Insert<clsLEDRound>();
        led.MyControl()->Move(area.left, area.top, area.width, area.height);
        main.ReleaseControl();
        return led;
    }

    const Widget* At(float x, float y) { return HitTest(main.ssScroll(), shown, x, y).widget; }
};

TEST_F(TheCanvas, HasSevenPixelsOfEachElementToPress)
{
    constexpr float side = 105; // seven pixels
    constexpr Area lamps[] = {{3000, 3000, 0, 0},     {3000, 3000, 15, 300}, {0, 3000, 0, 0},
                              {-900, 3000, 300, 300}, {3000, -900, 9, 9},    {-300, -300, 310, 310},
                              {31'000, 3000, 60, 60}, {3000, 4e6F, 255, 255}};
    const float right = static_cast<float>(main.ssScroll().ScrollMaxX());
    const float bottom = static_cast<float>(main.ssScroll().ScrollMaxY());
    const Area pressed[] = {{2947.5F, 2947.5F, side, side},
                            {2955, 3000, side, 300},
                            {0, 2947.5F, side, side},
                            {0, 3000, side, 300},
                            {2952, 0, side, side},
                            {0, 0, side, side},
                            {right - side, 2977.5F, side, side},
                            {3000, bottom - side, 255, side}};
    for (std::size_t i = 0; i < std::size(lamps); ++i) {
        const Widget* lamp = Lamp(lamps[i]).MyControl();
        const Area& area = pressed[i];
        EXPECT_EQ(At(area.left + 1, area.top + 1), lamp) << i;
        EXPECT_EQ(At(area.left + area.width - 1, area.top + area.height - 1), lamp) << i;
        EXPECT_EQ(At(area.left + area.width + 2, area.top + 1), nullptr) << i;
        EXPECT_EQ(At(area.left + 1, area.top + area.height + 2), nullptr) << i;
        main.ClearView();
    }
}

TEST_F(TheCanvas, GivesASmallElementItsPlaceAndOneOutsideNone)
{
    Insert<clsLabel>().MyControl()->Move(0, 0, 6'000, 3'000);
    const Widget* label = main.SelectedWidget();
    const Widget* lamp = Lamp({1'500, 1'500, 0, 0}).MyControl();
    Lamp({-900, 600, 300, 300});
    EXPECT_EQ(At(1'540, 1'460), lamp);
    EXPECT_EQ(At(50, 700), label) << "at the edge next to a lamp that nobody can scroll to";
    EXPECT_EQ(HitTest(main.ssScroll(), {0, 0, 40'000, 9'000}, 30'000, 1'000).widget, nullptr);
}

TEST_F(TheCanvas, RefusesAPressBeyondSixteenBitsOfALamp)
{
    clsLEDRound& led = Lamp({0, 0, 37'500, 37'500});
    const CanvasTarget target{CanvasTarget::What::Element, led.MyControl()};
    reporter.Announce(Ref("frmMain.Widget_MouseDown"));
    main.Mouse().Press(target, MouseButton::Left, 32'768, 10);
    ASSERT_FALSE(reporter.reports.empty());
    EXPECT_EQ(reporter.reports.back().number, failures::overflow);
    EXPECT_EQ(main.SelectedWidget(), nullptr);
    EXPECT_FALSE(main.Mouse().IsDragging());
    main.Mouse().Press(target, MouseButton::Left, 32'767, 10);
    EXPECT_EQ(main.SelectedWidget(), led.MyControl());
}

TEST_F(TheCanvas, PutsTheGroundOfANewViewAtItsStart)
{
    main.ssScroll().ScrollTo(1'500, 750);
    main.NewView();
    EXPECT_EQ(main.ssScroll().Background().left, -1'500);
    EXPECT_EQ(main.ssScroll().Background().top, -750);
}

} // namespace
