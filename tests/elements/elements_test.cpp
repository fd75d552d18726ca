// What elements of each kind are when they are new, and what they show of values; then where kinds are odd.

#include "binding/live.h"
#include "document/kinds.h"
#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/led_round.h"
#include "elements/meter_text.h"
#include "elements/mtr_angle.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/support/field_text.h"
#include "tests/support/kept_text.h"
#include "tests/support/widget_journal.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace {

// A new element on a canvas of its own in a live view, with every write to its widget in the journal.
struct ElementOnCanvas {
    explicit ElementOnCanvas(const Kind& kind)
    {
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
        live.PictureFiles = &pictures;
        live.Server = &server;
        element = kind.makeElement(canvas.AddArray("widgets", kind.makePrototype()).Load(1), live);
        element->ReadControlProps();
        canvas.SetTracer(journal);
    }
    explicit ElementOnCanvas(std::uint8_t type) : ElementOnCanvas(Kinds()[type]) {}

    template <class W> const W& Shown() const { return dynamic_cast<const W&>(*element->MyControl()); }

    // What the widget gets when the status comes, or when anything is done.
    std::string AfterValue(bool value, bool mute)
    {
        return After([&] { element->StatusSource()->ForceValue(value, mute); });
    }
    std::string After(const std::function<void()>& act)
    {
        journal.Take();
        act();
        return journal.Take();
    }

    FakeFiles files;
    FakePictures pictures{files};
    FakeServer server;
    WidgetJournal journal;
    Canvas canvas;
    Live live;
    std::unique_ptr<Element> element;
};

template <class E> struct OnCanvas : ElementOnCanvas {
    OnCanvas() : ElementOnCanvas(E::type) {}
    E& e = dynamic_cast<E&>(*element);
};

TEST(Elements, OfEachKindAreNewWithItsLookAndShowWhatComes)
{
    std::string told;
    for (const Kind& kind : Kinds()) {
        ElementOnCanvas fresh(kind);
        told += std::string(kind.array) + '\n';
        for (const auto& [name, value] : FieldText::Of(*fresh.element)) {
            told += "  " + name + '=' + value + '\n';
        }
        const auto tell = [&](const std::string& what, const std::function<void()>& act) {
            told += "  " + what + " > " + fresh.After(act) + '\n';
        };
        tell("shown", [&] { fresh.element->MyControl()->VisitProperties(fresh.journal); });
        tell("written", [&] { fresh.element->WriteControlProps(); });
        if (clsBlnDataSource* source = fresh.element->StatusSource()) {
            for (const char* each : {"false", "false", "true, muted", "true, muted", "true", "false, muted", "false"}) {
                const std::string_view value = each;
                tell(each, [&] { source->ForceValue(value.starts_with("true"), value.ends_with("muted")); });
            }
        }
        if (clsMtrDataSource* source = fresh.element->MeterSource()) {
            source->Set(&clsMtrDataSource::Unit, 2);
            source->Set(&clsMtrDataSource::Channel, 1);
            for (const float value : {7.0F, NoData, 8.0F, -9999.9F, 9.0F}) {
                const std::int16_t mutes = value > 7 ? 1 : 0;
                tell(std::to_string(value) + (mutes == 1 ? ", muted" : ""), [&] {
                    fresh.server.Values.Raise({"", 2, 0, 0, 0, 0, mutes, ServerArray<float>({value})});
                });
            }
            tell("disconnected", [&] { fresh.server.Disconnected.Raise("", 0); });
        }
        tell("written again", [&] { fresh.element->WriteControlProps(); });
    }
    ExpectAsKept(told, "elements.txt");
}

template <class E> class ACaptionPair : public testing::Test, public OnCanvas<E> {
};
using CaptionedKinds = testing::Types<clsLEDRect, clsStatusLabel, clsBoolPic>;
TYPED_TEST_SUITE(ACaptionPair, CaptionedKinds);

TYPED_TEST(ACaptionPair, ShowsTheOneInForceAndComesFromTheSourceOnlyWhereTheUserWantsIt)
{
    using E = TypeParam;
    E& pair = this->e;
    this->AfterValue(true, false);
    EXPECT_EQ(this->After([&] { pair.Set(&E::CaptionOff, "dark"); }), "");
    EXPECT_EQ(this->After([&] { pair.Set(&E::CaptionOn, "lit"); }), "Caption=lit ");
    pair.BlnDataSource.Set(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    pair.BlnDataSource.RefreshData();
    EXPECT_EQ(pair.CaptionOff(), "dark");
    pair.Set(&E::AutoCaption, true);
    pair.BlnDataSource.RefreshData();
    EXPECT_EQ(pair.CaptionOn() + pair.CaptionOff(), "Alarm(s) PresentNo Alarms Present");
}

template <class E> class AnActionButton : public testing::Test, public OnCanvas<E> {
};
using PressedKinds = testing::Types<clsCommand, clsCmdLED>;
TYPED_TEST_SUITE(AnActionButton, PressedKinds);

TYPED_TEST(AnActionButton, TakesItsCaptionAndItsLockFromItsAction)
{
    FakeLogin login;
    login.rightsHeld = {};
    this->live.Login = &login;
    this->server.Add("Ridge").Add(0);
    clsCmdDataSource& action = this->e.ClickAction;
    action.Set(&clsCmdDataSource::CmdDataType, actions::clearAllAlarms);
    action.Set(&clsCmdDataSource::Site, "Ridge");
    EXPECT_EQ(this->After([&] { action.RefreshData(); }), "Enabled=false ");
    login.rightsHeld = {rights::clearAlarms};
    this->e.Set(&TypeParam::AutoCaption, true);
    EXPECT_EQ(this->After([&] { action.RefreshData(); }), "Caption=Clear All Alarms Enabled=true ");
    EXPECT_EQ(this->e.Caption(), "Clear All Alarms");
}

TEST(AnElement, ThatIsGreyShowsAColourThatIsSetAtOnceAndMovesToExactlyThisPlace)
{
    OnCanvas<clsLEDRound> lamp;
    lamp.AfterValue(true, true);
    lamp.e.Set(&clsLEDRound::ColorActive, Color{7});
    EXPECT_EQ(lamp.Shown<RoundLed>().ActiveColor(), Color{7});
    lamp.canvas.SetScrollMaxima(9000, 9000);
    lamp.canvas.ScrollTo(300, 0);
    lamp.e.MoveControl(10, 20, 30, 40);
    EXPECT_EQ(lamp.element->MyControl()->Bounds(), (Area{20, 10, 40, 30})) << "it doesn't look at the scroll position";
    OnCanvas<clsMeterText> meter;
    meter.server.Disconnected.Raise("", 0);
    meter.e.Set(&clsMeterText::BGColor, Color{7});
    EXPECT_EQ(meter.Shown<AnalogDisplay>().BackGroundColor(), Color{7});
}

TEST(AnElement, KeepsAFontToItselfUntilItIsUpdatedAndStoresWhatItsWidgetRefuses)
{
    OnCanvas<clsLabel> label;
    Font font;
    font.Name = "Arial";
    EXPECT_EQ(label.After([&] { label.e.Set(&clsLabel::CaptionFont, font); }), "");
    EXPECT_EQ(label.After([&] { label.e.UpdateFont(); }), "Font=Arial ");
    EXPECT_THROW(label.e.Set(&clsLabel::CaptionAlignment, 32768), Failure) << "a widget's number has 16 bits";
    EXPECT_EQ(label.e.CaptionAlignment(), 32768);
    OnCanvas<clsMtrAngle> meter;
    EXPECT_EQ(meter.After([&] { meter.e.Set(&clsMtrAngle::MtrRadius, 50); }), "ArcRadius=50 PointerMargin=7 ");
    EXPECT_EQ(meter.After([&] { meter.e.Set(&clsMtrAngle::PointerLength, 20); }), "PointerMargin=30 ");
    EXPECT_THROW(meter.e.Set(&clsMtrAngle::PointerLength, -32'768), Failure);
    EXPECT_EQ(meter.e.PointerLength(), -32'768);
}

TEST(AStatusPicture, ReadsTheFileOfItsStateAtEachChange)
{
    using E = clsBoolPic;
    OnCanvas<E> picture;
    picture.e.Set(&E::ImageOn, "on.bmp");
    EXPECT_EQ(picture.After([&] { picture.e.Set(&E::ImageOff, "off.bmp"); }), "Picture=off.bmp ");
    EXPECT_EQ(picture.AfterValue(false, false), "Caption= Picture=off.bmp repaint ")
        << "the first value is always shown";
    EXPECT_EQ(picture.AfterValue(true, false), "Caption= Picture=on.bmp repaint ");
    picture.files.PutText("on.bmp", "");
    picture.AfterValue(false, false);
    EXPECT_EQ(picture.AfterValue(true, false), "Caption= repaint ") << "it is read again, and the old one stays";
    picture.e.Set(&E::ImageOff, "gone.bmp");
    EXPECT_THROW(picture.e.Set(&E::ImageOn, "gone.bmp"), Failure) << "only where it is shown";
    EXPECT_EQ(picture.e.ImageOn(), "gone.bmp");
    picture.e.Set(&E::ImageOff, "");
    EXPECT_EQ(picture.AfterValue(false, false), "Caption= Picture=none repaint ");
}

// What a load makes of a path that is empty, or of a file that isn't there.
template <class E, class S, class P> void ExpectLoadsWithout(S E::*path, P E::WidgetType::*picture)
{
    OnCanvas<E> made;
    const auto& shown = made.template Shown<typename E::WidgetType>().*picture;
    made.e.Set(path, "off.bmp");
    ASSERT_NE(shown(), nullptr);
    made.files.Erase("off.bmp");
    made.e.WriteControlProps();
    EXPECT_EQ(shown(), nullptr) << "cleared without a word";
    EXPECT_EQ((made.e.*path)(), "off.bmp") << "and kept";
    made.e.Set(path, "on.bmp");
    PropertyAccess::Value(made.e.*path) = "";
    made.e.WriteControlProps();
    EXPECT_EQ(shown()->Path(), "on.bmp") << "an empty path leaves what is there";
    made.e.Set(path, "");
    EXPECT_EQ(shown(), nullptr);
}

TEST(APictureFile, ThatIsGoneIsClearedAtALoadAndAnEmptyPathIsLeftAlone)
{
    ExpectLoadsWithout(&clsBoolPic::ImageOff, &Panel::Picture);
    ExpectLoadsWithout(&clsCommand::ImageFile, &PushButton::Picture);
    ExpectLoadsWithout(&clsPicture::PictureFile, &Panel::PanelPicture);
}

TEST(AnAngularMeter, FitsItsScaleToTheLimitsWhereItIsAskedTo)
{
    OnCanvas<clsMtrAngle> meter;
    meter.e.MtrDataSource.Set(&clsMtrDataSource::Channel, 1);
    meter.e.Set(&clsMtrAngle::AutoPositions, true);
    const struct {
        std::uint8_t type; // 1: from -2048 to 2047 counts, 2: from 0 to 4095
        float most;
        std::array<float, 4> limits;
        float posMin;
        float posMax;
    } cases[] = {
        {1, 2047, {0, 10, 90, 100}, -20, 120},         {2, 110, {0, 10, 90, 100}, 0, 110},
        {2, 120, {20, 30, 90, 100}, 4, 116},           {2, 4095, {100, 90, 10, 0}, 120, -20}, // turned round
        {1, 2047, {NoData, 10, 90, 100}, -2048, 2047}, // a limit that isn't known is no special case
    };
    for (const auto& each : cases) {
        ConfigDataEvent config{"", 0, {}, {}, {}, {}, {}, {}, {}};
        config.Limits = {{each.limits.begin(), each.limits.end()}, 4};
        config.MtrLabels = ServerArray<std::string>({"Power"});
        config.CalibConst = ServerArray<float>({each.most / (each.type == 1 ? 2047 : 4095)});
        config.MtrTypes = ServerArray<std::uint8_t>({each.type});
        meter.server.ConfigData.Raise(config);
        EXPECT_FLOAT_EQ(meter.e.PosMin(), each.posMin);
        EXPECT_FLOAT_EQ(meter.e.PosMax(), each.posMax);
        EXPECT_EQ(
            (std::array{meter.e.SectionEnd1(), meter.e.SectionEnd2(), meter.e.SectionEnd3(), meter.e.SectionEnd4()}),
            each.limits);
    }
}

TEST(ALiveLamp, HearsTheServerByWhatItGotOfARecordThatEndsWithinItsSource)
{
    OnCanvas<clsLEDRect> whole;
    whole.e.BlnDataSource.Set(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    std::vector<std::uint8_t> record;
    std::int32_t checksum = 0;
    whole.e.SaveToArray(record, checksum);
    OnCanvas<clsLEDRect> lamp;
    const std::span<const std::uint8_t> payload = std::span(record).subspan(3);
    EXPECT_THROW(lamp.e.ReadFromArray(payload.first(payload.size() - 3)), Failure) << "ends behind the type";
    lamp.server.appAlarms = true;
    lamp.server.AlarmFlagChange.Raise("Ridge", 3, true, true);
    EXPECT_TRUE(lamp.Shown<RectLed>().Active());
}

} // namespace
