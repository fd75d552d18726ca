// Where the parts of gauges lie, for plain numbers and for those that only a damaged file has.

#include "tests/test.h"
#include "widgets/angular_gauge.h"
#include "widgets/arc_layout.h"
#include "widgets/canvas.h"
#include "widgets/gauge_scale.h"
#include "widgets/linear_gauge.h"
#include "widgets/linear_layout.h"
#include "widgets/widget_array.h"

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();
constexpr double most = std::numeric_limits<double>::max();

TEST(AScale, PlacesAnyValueBetweenAnyLimits)
{
    const struct {
        double first, last, value, way;
        int beyond;
    } cases[] = {
        {0, 100, 0, 0, 0},         {0, 100, 100, 1, 0},      {0, 100, 25, 0.25, 0},
        {0, 100, -0.01, 0, -1},    {0, 100, 100.01, 1, 1},   {100, 0, 25, 0.75, 0},
        {100, 0, 101, 0, -1},      {5, 5, 5, 0, 0},          {5, 5, 4, 0, -1},
        {5, 5, 6, 1, 1},           {0, 100, none, 0, -1},    {0, 100, endless, 1, 1},
        {0, 100, -endless, 0, -1}, {-most, most, 0, 0.5, 0}, {none, 100, 50, 0.5, 0},
        {0, none, 1, 1, 1},        {0, endless, 5, 0, 0},    {-endless, endless, 1, .5, 0},
        {none, none, none, 0, -1},
    };
    for (const auto& each : cases) {
        const ScalePlace place = PlaceOn(each.first, each.last, each.value);
        EXPECT_NEAR(place.way, each.way, 1e-9) << each.first << " to " << each.last << ": " << each.value;
        EXPECT_EQ(place.beyond, each.beyond) << each.first << " to " << each.last << ": " << each.value;
    }
}

// Colours 1 to 5; a run is told as "colour from-to" in hundredths.
std::string Runs(std::array<double, 4> ends, bool isReversed = false, std::array<int, 5> sections = {1, 2, 3, 4, 5})
{
    AngularGauge gauge;
    gauge.Set(&ScaleGauge::SectionEnd1, ends[0]);
    gauge.Set(&ScaleGauge::SectionEnd2, ends[1]);
    gauge.Set(&ScaleGauge::SectionEnd3, ends[2]);
    gauge.Set(&ScaleGauge::SectionEnd4, ends[3]);
    gauge.Set(&ScaleGauge::SectionColor1, Color{sections[0]});
    gauge.Set(&ScaleGauge::SectionColor2, Color{sections[1]});
    gauge.Set(&ScaleGauge::SectionColor3, Color{sections[2]});
    gauge.Set(&ScaleGauge::SectionColor4, Color{sections[3]});
    gauge.Set(&ScaleGauge::SectionColor5, Color{sections[4]});
    gauge.Set(&ScaleGauge::ReverseScaleFlag, isReversed);
    std::string told;
    for (const SectionRun& run : SectionRuns(gauge)) {
        told += std::to_string(run.color.value) + ' ' + std::to_string(std::lround(run.from * 100)) + '-' +
                std::to_string(std::lround(run.to * 100)) + ' ';
    }
    return told;
}

TEST(AScale, IsCoveredByItsSectionsWhateverTheirEnds)
{
    EXPECT_EQ(Runs({20, 40, 60, 80}), "1 0-20 2 20-40 3 40-60 4 60-80 5 80-100 ");
    EXPECT_EQ(Runs({20, 40, 60, 80}, true), "5 0-20 4 20-40 3 40-60 2 60-80 1 80-100 ");
    EXPECT_EQ(Runs({20, 40, 60, 80}, false, {1, 2, 2, 1, 1}), "1 0-20 2 20-60 1 60-100 ");
    EXPECT_EQ(Runs({50, 30, 40, 80}), "1 0-50 4 50-80 5 80-100 ") << "a section that ends too early is empty";
    EXPECT_EQ(Runs({-10'000, -10'000, 40, 500}), "3 0-40 4 40-100 ") << "ends beyond the scale";
    EXPECT_EQ(Runs({none, -endless, endless, 80}), "3 0-100 ");
}

TEST(ANumber, ReadsTheSameEverywhere)
{
    const struct {
        double value;
        int decimals;
        const char* text;
    } cases[] = {{4.5, 2, "4.50"},      {-0.001, 2, "0.00"}, {-12.75, 1, "-12.8"},
                 {10'000, 0, "10000"},  {1, -3, "1"},        {1, 400, "1.000000000000000"},
                 {1e20, 2, "1.00e+20"}, {none, 2, "---"},    {-endless, 2, "---"}};
    for (const auto& each : cases) {
        EXPECT_EQ(NumberText(each.value, each.decimals), each.text);
    }
}

TEST(ALinearGauge, GivesItsNumbersTheRoomThatTheyNeed)
{
    LinearGauge gauge;
    gauge.Set(&ScaleGauge::SectionBandWidth, 20);
    const struct {
        const char* what;
        std::int16_t band;
        std::int32_t location;
        double across, edge, number;
        double low, high, numberLow;
    } cases[] = {
        {"in the middle, rounded down", 20, tick_locations::bottomRight, 41, 0, 8, 5, 25, 28},
        {"numbers at the other side", 20, tick_locations::topLeft, 41, 0, 8, 16, 36, 5},
        {"the band gives way", 20, tick_locations::bottomRight, 41, 0, 19, 0, 19, 22},
        {"within the border", 20, tick_locations::bottomRight, 41, 2, 19, 2, 17, 20},
        {"the pointer stands out of it", 10, tick_locations::bottomRight, 41, 0, 8, 11, 21, 24},
        {"without numbers", 20, tick_locations::bottomRight, 41, 0, 0, 10, 30, 30},
        {"numbers that don't fit at all", 20, tick_locations::bottomRight, 20, 0, 30, 0, 20, 20},
    };
    for (const auto& each : cases) {
        gauge.Set(&ScaleGauge::SectionBandWidth, each.band);
        gauge.Set(&LinearGauge::TickLocation, each.location);
        const LinearLayout layout = LayOut(gauge, {210, each.across, 1, each.edge, 8, 8, each.number});
        EXPECT_EQ(layout.bandLow, each.low) << each.what;
        EXPECT_EQ(layout.bandHigh, each.high) << each.what;
        if (layout.doNumbersFit) {
            EXPECT_EQ(layout.numberLow, each.numberLow) << each.what;
        }
    }
}

TEST(ALinearGauge, MarksTheLimitsWithinItsBandAndParksBeyondThem)
{
    LinearGauge gauge; // vertical: the scale begins at the bottom
    const LinearLayout layout = LayOut(gauge, {210, 41, 1, 0, 8, 8, 19});
    EXPECT_EQ(layout.Marked({0, 0}, 1, 1), 194);
    EXPECT_EQ(layout.Marked({1, 0}, 1, 1), 15);
    EXPECT_EQ(layout.Marked({0, -1}, 1, 1), 201);
    EXPECT_EQ(layout.Marked({1, 1}, 1, 1), 8);
}

TEST(AnAngularGauge, PartsNumbersThatMeetAndKeepsThemInTheBox)
{
    AngularGauge gauge;
    gauge.Set(&AngularGauge::ArcStartDegrees, 270);
    gauge.Set(&AngularGauge::ArcRangeDegrees, 360);
    const Extent box{3, 3, 97, 97};
    for (const double width : {6.0, 30.0, 44.0}) {
        const HungNumbers numbers = HangNumbers(ArcOf(gauge, 100, 100, 1), 2, width, width, 8, box);
        EXPECT_TRUE(numbers.doFit);
        EXPECT_NEAR(numbers.end.left - numbers.start.left - width, 6, 0.5);
        EXPECT_GE(numbers.start.left, box.left);
        EXPECT_LE(numbers.end.left + width, box.right);
        EXPECT_LE(numbers.start.top + 8, box.bottom);
    }
    EXPECT_FALSE(HangNumbers(ArcOf(gauge, 100, 100, 1), 2, 45, 45, 8, box).doFit);
}

TEST(AnAngularGauge, DrawsItsPointerBackWhereThereIsNoRoomBesideItsEnds)
{
    AngularGauge gauge;
    gauge.Set(&AngularGauge::ArcStartDegrees, 90);
    const auto reach = [&](std::int16_t range, double value) {
        gauge.Set(&AngularGauge::ArcRangeDegrees, range);
        gauge.Set(&ScaleGauge::Position, value);
        return 50 - BoundsOf(PointerOutline(gauge, ArcOf(gauge, 100, 100, 1)).Points()).top;
    };
    EXPECT_NEAR(reach(360, 0), 40, 0.5);
    EXPECT_LT(reach(360, -1), 30);
    EXPECT_NEAR(reach(270, -1), 40, 0.5);
}

// A new value repaints the pointer's old and new place and no more; anything else the whole gauge.
template <class Gauge> void ExpectPartialRepaints(float width, float height, float mostOfIt)
{
    Canvas canvas;
    Widget& widget = canvas.AddArray("gauges", std::make_unique<Gauge>()).Load(1);
    widget.Move(150, 300, width * twipsPerPixelX, height * twipsPerPixelY);
    widget.Set(&Widget::Visible, true);
    std::vector<Area> areas;
    const Subscription subscription = canvas.Changed.Subscribe([&](const Area& area) { areas.push_back(area); });
    auto& gauge = static_cast<Gauge&>(widget);
    for (const double value : {20.0, 50.0, 300.0, -1e30, none}) {
        areas.clear();
        gauge.Set(&ScaleGauge::Position, value);
        ASSERT_LE(areas.size(), 2U);
        ASSERT_GE(areas.size(), 1U) << value;
        for (const Area& area : areas) {
            EXPECT_LE(area.width * area.height, mostOfIt * widget.Width() * widget.Height()) << value;
            EXPECT_EQ(United(area, widget.Bounds()), widget.Bounds());
        }
    }
    areas.clear();
    gauge.Set(&ScaleGauge::SectionBandWidth, std::int16_t{9});
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_EQ(areas[0], widget.Bounds());

    // Where the pointer was is found anew behind another look, place and value: as by a gauge that is new.
    const std::function<void()> changes[] = {[] {}, [&] { gauge.Set(&ScaleGauge::PointerSize, std::int16_t{40}); },
                                             [&] { gauge.Set(&Widget::Left, 4500); },
                                             [&] { gauge.Set(&Widget::Height, widget.Height() + 1500); }};
    for (const auto& change : changes) {
        gauge.Set(&ScaleGauge::Position, 50);
        change();
        auto& twin = static_cast<Gauge&>(canvas.AddArray("twins", gauge.Clone()).Load(1));
        ASSERT_TRUE(twin.Visible());
        areas.clear();
        gauge.Set(&ScaleGauge::Position, 10);
        const std::vector<Area> own = std::exchange(areas, {});
        twin.Set(&ScaleGauge::Position, 10);
        EXPECT_EQ(areas, own);
    }
}

TEST(AGauge, RepaintsItsPointerAloneForAValue)
{
    ExpectPartialRepaints<AngularGauge>(105, 105, 0.35F);
    ExpectPartialRepaints<LinearGauge>(41, 210, 0.15F);
}

} // namespace
