#include "binding/live.h"
#include "elements/led_round.h"
#include "tests/support/widget_journal.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace {

struct ALamp : testing::Test {
    Canvas canvas;
    WidgetArray& lamps = canvas.AddArray("ctlLEDRound", clsLEDRound::Prototype());
    Live live{true};
    clsLEDRound led{lamps.Load(1), live};
    const RoundLed& shown = static_cast<const RoundLed&>(*led.MyControl());
    WidgetJournal journal;

    void SetUp() override
    {
        canvas.SetScrollMaxima(9000, 9000);
        led.ReadControlProps();
        canvas.SetTracer(journal);
    }
};

TEST_F(ALamp, ShowsItsFirstValueAlwaysAndLaterOnesWhenTheyDiffer)
{
    led.BlnDataSource.ForceValue(false, false);
    EXPECT_EQ(journal.Take(), "Active=false repaint ");
    led.BlnDataSource.ForceValue(false, false);
    EXPECT_EQ(journal.Take(), "repaint ");
    led.BlnDataSource.ForceValue(true, false);
    EXPECT_EQ(journal.Take(), "Active=true repaint ");
}

TEST_F(ALamp, IsGreyWhileItsValueIsNotToBeTrustedAndKeepsItsColours)
{
    led.Set(&clsLEDRound::ColorActive, Color{255});
    led.BlnDataSource.ForceValue(true, false);
    journal.Take();
    led.BlnDataSource.ForceValue(true, true);
    EXPECT_EQ(journal.Take(), "ActiveColor=-2147483633 InactiveColor=-2147483633 AutoInactiveColor=false repaint ");
    led.BlnDataSource.ForceValue(true, true);
    EXPECT_EQ(journal.Take(), "repaint ");
    led.Set(&clsLEDRound::ColorActive, Color{7});
    EXPECT_EQ(shown.ActiveColor(), Color{7}) << "a colour that is set shows at once";
    journal.Take();
    led.BlnDataSource.ForceValue(true, false);
    EXPECT_EQ(journal.Take(), "ActiveColor=7 InactiveColor=26112 AutoInactiveColor=true repaint ");
}

TEST_F(ALamp, WritesItsSettingsInTheirOrderAndItsStateLast)
{
    led.WriteControlProps();
    EXPECT_EQ(journal.Take(), "Width=255 Height=255 Top=0 Left=0 AutoInactiveColor=true ShowReflection=true "
                              "BevelStyle=2 ActiveColor=65280 InactiveColor=26112 Active=false ");
}

TEST_F(ALamp, KeepsItsPlaceInTheViewWhateverIsScrolled)
{
    led.Set(&Element::ObjLeft, 1000);
    canvas.ScrollTo(300, 0);
    EXPECT_EQ(led.ObjLeft(), 1000);
    EXPECT_EQ(shown.Left(), 700);
    led.Set(&Element::ObjLeft, led.ObjLeft());
    EXPECT_EQ(shown.Left(), 700);
    led.MoveControl(10, 20, 30, 40);
    EXPECT_EQ(shown.Bounds(), (Area{20, 10, 40, 30})) << "a direct move does not look at the scroll position";
}

} // namespace
