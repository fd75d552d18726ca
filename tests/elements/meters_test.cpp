#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/mtr_linear.h"
#include "tests/support/widget_journal.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace {

// A meter in a live view.
template <class E> struct AMeter : testing::Test {
    Canvas canvas;
    WidgetArray& meters = canvas.AddArray("meters", E::Prototype());
    FakeServer server;
    Live live;
    std::unique_ptr<E> meter;
    WidgetJournal journal;

    void SetUp() override
    {
        live.Server = &server;
        meter = MakeOne(1);
        meter->MtrDataSource.Set(&clsMtrDataSource::Site, "Ridge");
        meter->MtrDataSource.Set(&clsMtrDataSource::Unit, 2);
        meter->MtrDataSource.Set(&clsMtrDataSource::Channel, 1);
        canvas.SetTracer(journal);
    }

    std::unique_ptr<E> MakeOne(std::int32_t index)
    {
        auto made = std::make_unique<E>(meters.Load(index), live);
        made->ReadControlProps();
        return made;
    }

    const typename E::WidgetType& Shown() const
    {
        return static_cast<const typename E::WidgetType&>(*meter->MyControl());
    }

    // What the widget gets when a value comes.
    std::string Hear(float value, bool isMuted)
    {
        journal.Take();
        const std::int16_t mutes = isMuted ? 1 : 0;
        server.Values.Raise({"Ridge", 2, 0, 0, 0, 0, mutes, ServerArray<float>({value})});
        return journal.Take();
    }

    void HearLimits(float least, float most, std::array<float, 4> limits)
    {
        ConfigDataEvent config{"Ridge", 2, {}, {}, {}, {}, {}, {}, {}};
        config.Limits = {{limits[0], limits[1], limits[2], limits[3]}, 4};
        config.MtrLabels = ServerArray<std::string>({"Power"});
        // A converter of both ways reads from -2048 to 2047 counts, another from 0 to 4095.
        const bool isSigned = least < 0;
        config.CalibConst = ServerArray<float>({isSigned ? least / -2048 : most / 4095});
        config.MtrTypes = ServerArray<std::uint8_t>({static_cast<std::uint8_t>(isSigned ? 1 : 2)});
        server.ConfigData.Raise(config);
    }
};

using ATextMeter = AMeter<clsMeterText>;
using AnAngularMeter = AMeter<clsMtrAngle>;
using ALinearMeter = AMeter<clsMtrLinear>;

constexpr float justData = -9999.9F;

TEST_F(ATextMeter, ReadsZeroOnGreyWithoutData)
{
    EXPECT_EQ(Hear(7, false), "DisplayValue=7 repaint ");
    EXPECT_EQ(Hear(NoData, false), "DisplayValue=0 BackGroundColor=-2147483633 repaint ");
    EXPECT_EQ(Hear(8, true), "DisplayValue=8 repaint ") << "grey already";
    meter->Set(&clsMeterText::BGColor, Color{255});
    EXPECT_EQ(Shown().BackGroundColor(), Color{255}) << "a colour that is set shows at once";
    EXPECT_EQ(Hear(justData, false), "DisplayValue=-9999 BackGroundColor=255 repaint ");
    EXPECT_EQ(Hear(9, true), "DisplayValue=9 BackGroundColor=-2147483633 repaint ");
    server.Disconnected.Raise("Ridge", 0);
    EXPECT_EQ(journal.Take(), "DisplayValue=0 repaint ");
}

TEST_F(ATextMeter, TakesItsDecimalPlacesFromItsWidgetAndHearsOfOthers)
{
    EXPECT_EQ(meter->MtrDataSource.DecimalPlaces(), 2);
    meter->MtrDataSource.Set(&clsMtrDataSource::DecimalPlaces, 4);
    EXPECT_EQ(Shown().DisplayPrecision(), 4);
    journal.Take();
    meter->ReadControlProps();
    EXPECT_EQ(journal.Take(), "DisplayPrecision=4 ") << "its own handler hears what it takes";
}

TEST_F(ATextMeter, KeepsAFontToItselfUntilItIsUpdated)
{
    Font font;
    font.Name = "Arial";
    meter->Set(&clsMeterText::Font, font);
    EXPECT_EQ(journal.Take(), "");
    meter->UpdateFont();
    EXPECT_EQ(journal.Take(), "Font=Arial ");
}

TEST_F(AnAngularMeter, PointsAtAnyValueAndGreysItsSectionsWithoutATrustedOne)
{
    const std::string grey = "SectionColor1=-2147483633 SectionColor2=-2147483633 SectionColor3=-2147483633 "
                             "SectionColor4=-2147483633 SectionColor5=-2147483633 ";
    EXPECT_EQ(Hear(20'000, false), "Position=20000 repaint ");
    EXPECT_EQ(Hear(NoData, false), "Position=-10000 " + grey + "repaint ");
    EXPECT_EQ(Hear(1, true), "Position=1 repaint ");
    EXPECT_EQ(Hear(justData, false), "Position=-9999 SectionColor1=255 SectionColor2=65535 SectionColor3=65280 "
                                     "SectionColor4=65535 SectionColor5=255 repaint ");
}

TEST_F(ALinearMeter, GreysItsSectionsInALighterGrey)
{
    const std::string grey = "SectionColor1=14737632 SectionColor2=14737632 SectionColor3=14737632 "
                             "SectionColor4=14737632 SectionColor5=14737632 ";
    EXPECT_EQ(Hear(50, true), "Position=50 " + grey + "repaint ");
    EXPECT_EQ(meter->SectionColor2(), Color{0x000080FF}) << "the setting stays";
}

TEST_F(AnAngularMeter, FitsItsScaleToTheLimitsWhereItIsAskedTo)
{
    struct {
        float least;
        float most;
        std::array<float, 4> limits;
        float posMin;
        float posMax;
    } const cases[] = {
        {-2048, 2047, {0, 10, 90, 100}, -20, 120},
        {0, 110, {0, 10, 90, 100}, 0, 110},
        {0, 120, {20, 30, 90, 100}, 4, 116},
        {0, 4095, {100, 90, 10, 0}, 120, -20},             // turned round
        {-2048, 2047, {NoData, 10, 90, 100}, -2048, 2047}, // a limit that isn't known is no special case
    };
    HearLimits(0, 110, {0, 10, 90, 100});
    EXPECT_EQ(meter->PosMax(), 10'000) << "not by itself";
    meter->Set(&clsMtrAngle::AutoPositions, true);
    for (const auto& each : cases) {
        HearLimits(each.least, each.most, each.limits);
        EXPECT_FLOAT_EQ(meter->PosMin(), each.posMin);
        EXPECT_FLOAT_EQ(meter->PosMax(), each.posMax);
        EXPECT_EQ(Shown().PositionMax(), meter->PosMax());
        EXPECT_EQ((std::array{meter->SectionEnd1(), meter->SectionEnd2(), meter->SectionEnd3(), meter->SectionEnd4()}),
                  each.limits);
    }
}

TEST_F(AnAngularMeter, KeepsThePointersLengthWhateverTheRadius)
{
    EXPECT_EQ(meter->PointerLength(), 43);
    journal.Take();
    meter->Set(&clsMtrAngle::MtrRadius, 50);
    EXPECT_EQ(journal.Take(), "ArcRadius=50 PointerMargin=7 ");
    meter->Set(&clsMtrAngle::PointerLength, 20);
    EXPECT_EQ(journal.Take(), "PointerMargin=30 ");
    EXPECT_THROW(meter->Set(&clsMtrAngle::PointerLength, -32'768), Failure);
    EXPECT_EQ(meter->PointerLength(), -32'768) << "stored before it fails";
}

TEST_F(ALinearMeter, HearsOfDecimalPlacesWhenItIsWrittenAnewAlone)
{
    meter->MtrDataSource.Set(&clsMtrDataSource::DecimalPlaces, 3);
    EXPECT_EQ(Shown().TickLabelPrecision(), 0);
    meter->WriteControlProps();
    EXPECT_EQ(Shown().TickLabelPrecision(), 3);
}

TEST_F(AnAngularMeter, HearsOfDecimalPlacesAtOnce)
{
    meter->MtrDataSource.Set(&clsMtrDataSource::DecimalPlaces, 3);
    EXPECT_EQ(Shown().TickLabelPrecision(), 3);
}

TEST_F(ALinearMeter, LosesTwoSettingsWithTheFile)
{
    meter->Set(&clsMtrLinear::PointerColor, Color{255});
    meter->Set(&clsMtrLinear::TickVals, false);
    meter->Set(&clsMtrLinear::BandWidth, 33);
    std::vector<std::uint8_t> record;
    std::int32_t checksum = 0;
    meter->SaveToArray(record, checksum);
    const auto loaded = MakeOne(2);
    loaded->ReadFromArray(std::span(record).subspan(3));
    EXPECT_EQ(loaded->BandWidth(), 33);
    EXPECT_EQ(loaded->PointerColor(), Color{});
    EXPECT_TRUE(loaded->TickVals());
}

TEST_F(ALinearMeter, SwapsItsSidesWhenItIsTurnedAndIsPlacedLastWhenItIsWritten)
{
    meter->Set(&clsMtrLinear::MeterOrientation, orientations::vertical);
    EXPECT_EQ(Shown().Bounds(), (Area{0, 0, 615, 3150}));
    EXPECT_EQ(meter->ObjWidth(), 3150) << "the element doesn't look";
    meter->Set(&clsMtrLinear::MeterOrientation, orientations::vertical);
    EXPECT_EQ(Shown().Width(), 615);
    meter->Set(&Element::ObjWidth, 2000);
    meter->Set(&Element::ObjHeight, 615);

    std::vector<std::uint8_t> record;
    std::int32_t checksum = 0;
    meter->SaveToArray(record, checksum);
    const auto loaded = MakeOne(2);
    loaded->ReadFromArray(std::span(record).subspan(3));
    EXPECT_EQ(loaded->MyControl()->Bounds(), (Area{0, 0, 2000, 615}));
}

TEST_F(AnAngularMeter, IsWrittenInItsOrder)
{
    meter->WriteControlProps();
    EXPECT_EQ(
        journal.TakeNames(),
        "Width Height Top Left PositionMax PositionMin BorderStyle ReverseScaleFlag Transparent BackGroundColor "
        "PointerColor TickValuesVisible SectionBandWidth PointerSize SectionColor1 SectionColor2 SectionColor3 "
        "SectionColor4 SectionColor5 SectionEnd1 SectionEnd2 SectionEnd3 SectionEnd4 TickLabelColorValue "
        "ShowInnerArcRadius ShowOuterArcRadius ArcRangeDegrees ArcRadius ArcStartDegrees HubSize HubColor ShowHub "
        "OffsetX OffsetY PointerStyleCode PointerMargin TickLabelMargin TickLabelFont TickLabelPrecision ");
}

TEST_F(ALinearMeter, IsWrittenInItsOrder)
{
    meter->WriteControlProps();
    EXPECT_EQ(journal.TakeNames(),
              "PositionMax PositionMin BorderStyle ReverseScaleFlag Transparent BackGroundColor SectionColor1 "
              "SectionColor2 SectionColor3 SectionColor4 SectionColor5 SectionEnd1 SectionEnd2 SectionEnd3 SectionEnd4 "
              "Orientation TickLocation PointerColor TickValuesVisible SectionBandWidth PointerSize PointerOffset "
              "TickLabelColorValue TickLabelMargin TickLabelFont TickLabelPrecision Width Height Top Left ");
}

TEST_F(ATextMeter, IsWrittenInItsOrder)
{
    meter->WriteControlProps();
    EXPECT_EQ(journal.TakeNames(), "Width Height Top Left BackGroundColor FontColor Alignment Font BorderStyle "
                                   "DisplayPrecision ");
}

} // namespace
