// The seven kinds that are neither the round LED nor meters: what they show, when, and in which order.

#include "binding/live.h"
#include "elements/bool_pic.h"
#include "elements/cmd_led.h"
#include "elements/command.h"
#include "elements/label.h"
#include "elements/led_rect.h"
#include "elements/picture.h"
#include "elements/status_label.h"
#include "tests/support/field_text.h"
#include "tests/support/widget_journal.h"
#include "tests/test.h"
#include "widgets/canvas.h"
#include "widgets/widget_array.h"

namespace {

// A new element of that kind on a canvas of its own, with every write to its widget in the journal.
template <class E> struct OnCanvas {
    FakeFiles files;
    FakePictures pictures{files};
    Canvas canvas;
    WidgetArray& widgets = canvas.AddArray("widgets", E::Prototype());
    Live live{true};
    E element;
    WidgetJournal journal;

    explicit OnCanvas(bool designMode = true, TeskServer* server = nullptr)
        : live(designMode), element(MakeReady(server), live)
    {
        files.PutText("on.bmp", "on");
        files.PutText("off.bmp", "off");
        element.ReadControlProps();
        canvas.SetTracer(journal);
    }

    Widget& MakeReady(TeskServer* server)
    {
        live.PictureFiles = &pictures;
        live.Server = server;
        return widgets.Load(1);
    }

    const typename E::WidgetType& Shown() const
    {
        return static_cast<const typename E::WidgetType&>(*element.MyControl());
    }

    std::string OrderOfWrites()
    {
        journal.TakeNames();
        element.WriteControlProps();
        journal.Take();
        return journal.TakeNames();
    }

    std::string After(const std::function<void(E&)>& act)
    {
        act(element);
        journal.TakeNames();
        return journal.Take();
    }

    std::string AfterValue(bool value, bool mute)
    {
        return After([=](E& e) { e.BlnDataSource.ForceValue(value, mute); });
    }
};

TEST(PlainElements, ImposeTheirSettingsInTheOrderOfTheirKind)
{
    const std::string extents = "Width Height Top Left ";
    EXPECT_EQ(OnCanvas<clsLEDRect>().OrderOfWrites(),
              extents + "BevelStyle ShowReflection AutoInactiveColor ActiveColor InactiveColor Active CaptionOnColor "
                        "CaptionOffColor CaptionWordWrap CaptionAlignment CenterLabelFont Caption ");
    EXPECT_EQ(OnCanvas<clsStatusLabel>().OrderOfWrites(),
              extents + "WordWrap Alignment Caption BackStyle BorderStyle Appearance Font ForeColor BackColor ");
    EXPECT_EQ(OnCanvas<clsLabel>().OrderOfWrites(),
              extents + "Caption WordWrap Alignment BackStyle BorderStyle Appearance Font ForeColor BackColor ");
    EXPECT_EQ(OnCanvas<clsBoolPic>().OrderOfWrites(),
              extents + "Caption CaptionWordWrap BackColor ForeColor CaptionAlignment ImageAlignment "
                        "PictureUseMaskFlag PictureMaskColorValue BevelStyle Font ");
    EXPECT_EQ(OnCanvas<clsCommand>().OrderOfWrites(),
              extents + "Caption ForeColor CaptionAlignment ImageAlignment PictureUseMaskFlag PictureMaskColorValue "
                        "Font CaptionWordWrap ");
    EXPECT_EQ(OnCanvas<clsCmdLED>().OrderOfWrites(),
              extents + "LEDColor LEDAlignment Caption CaptionColor CaptionFont ");
    EXPECT_EQ(OnCanvas<clsPicture>().OrderOfWrites(),
              extents + "BevelStyle PictureFillModeCode PictureMaskColorValue PictureUseMaskFlag BackColor ");
}

// Settings and their values, "Name=value Name=value".
template <class E> void ExpectNew(const std::string& settings)
{
    OnCanvas<E> fresh;
    std::istringstream each(settings);
    for (std::string wanted; std::getline(each, wanted, ';');) {
        const std::string name = wanted.substr(0, wanted.find('='));
        EXPECT_EQ(name + '=' + FieldText::Of(fresh.element, name), wanted);
    }
}

TEST(PlainElements, AreNewWithTheLookOfTheirKind)
{
    ExpectNew<clsLEDRect>("ObjWidth=1575.000000;ObjHeight=375.000000;AutoCaption=0;CaptionOn=;CaptionOff=;"
                          "CaptionFont=MS Sans Serif;AutoInactive=1;BevelStyle=2");
    ExpectNew<clsStatusLabel>("ObjWidth=1575.000000;ObjHeight=195.000000;CaptionOn=Status Label;"
                              "CaptionOff=Status Label;AutoCaption=0;BGColor=16777215;BGTransparent=1");
    ExpectNew<clsLabel>("ObjWidth=1575.000000;ObjHeight=195.000000;Caption=Label;BGColor=16777215;BGTransparent=1");
    ExpectNew<clsBoolPic>("ObjWidth=1575.000000;ObjHeight=1575.000000;BGColor=-2147483633;CaptionColor=-2147483630;"
                          "CaptionOn=;CaptionOff=;ImageOn=;ImageOff=;AutoCaption=0");
    ExpectNew<clsCmdLED>("ObjWidth=1575.000000;ObjHeight=495.000000;Caption=On;AutoCaption=0");
    ExpectNew<clsCommand>("ObjWidth=1575.000000;ObjHeight=375.000000;Caption=Command;CaptionColor=-2147483630;"
                          "ImageFile=;AutoCaption=0");
    ExpectNew<clsPicture>("ObjWidth=1575.000000;ObjHeight=1575.000000;BGColor=-2147483633;PictureFile=;"
                          "PictureFillMode=0");
}

template <class E> class ACaptionPair : public testing::Test, public OnCanvas<E> {
};
using CaptionedKinds = testing::Types<clsLEDRect, clsStatusLabel, clsBoolPic>;
TYPED_TEST_SUITE(ACaptionPair, CaptionedKinds);

TYPED_TEST(ACaptionPair, ShowsTheOneInForceAndTheOtherWaits)
{
    using E = TypeParam;
    EXPECT_EQ(this->After([](E& e) { e.Set(&E::CaptionOn, "lit"); }), "");
    EXPECT_EQ(this->After([](E& e) { e.Set(&E::CaptionOff, "dark"); }), "Caption=dark ");
    this->AfterValue(true, false);
    EXPECT_EQ(this->Shown().Caption(), "lit");
    EXPECT_EQ(this->After([](E& e) { e.Set(&E::CaptionOff, "off"); }), "");
    EXPECT_EQ(this->After([](E& e) { e.Set(&E::CaptionOn, "on"); }), "Caption=on ");
}

TYPED_TEST(ACaptionPair, ComesFromTheSourceOnlyWhereTheUserWantsIt)
{
    TypeParam& e = this->element;
    this->live.Server = nullptr;
    e.BlnDataSource.Set(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    FakeServer server;
    this->live.Server = &server;
    const std::string typed = e.CaptionOff();
    e.BlnDataSource.RefreshData();
    EXPECT_EQ(e.CaptionOff(), typed);
    e.Set(&TypeParam::AutoCaption, true);
    e.BlnDataSource.RefreshData();
    EXPECT_EQ(e.CaptionOn(), "Alarm(s) Present");
    EXPECT_EQ(this->Shown().Caption(), "No Alarms Present");
}

TEST(ARectangularLamp, ShowsWhatChangesAndKeepsItsTextWhileItIsGrey)
{
    OnCanvas<clsLEDRect> lamp;
    lamp.element.Set(&clsLEDRect::CaptionOn, "on");
    lamp.element.Set(&clsLEDRect::CaptionOff, "off");
    EXPECT_EQ(lamp.AfterValue(false, false), "Caption=off Active=false Caption=off repaint ");
    EXPECT_EQ(lamp.AfterValue(false, false), "repaint ");
    EXPECT_EQ(lamp.AfterValue(true, true), "Active=true Caption=on ActiveColor=-2147483633 "
                                           "InactiveColor=-2147483633 AutoInactiveColor=false repaint ");
    EXPECT_EQ(lamp.AfterValue(true, false), "ActiveColor=65280 InactiveColor=26112 AutoInactiveColor=true repaint ");
}

TEST(AStatusLabel, IsDisabledWhileItsValueIsNotToBeTrusted)
{
    OnCanvas<clsStatusLabel> label;
    EXPECT_EQ(label.AfterValue(false, true), "Caption=Status Label Enabled=false repaint ");
    EXPECT_EQ(label.AfterValue(false, true), "repaint ");
    EXPECT_EQ(label.AfterValue(false, false), "Enabled=true repaint ");
}

TEST(ALabel, WritesItsFlagsAsTheWidgetHasThem)
{
    OnCanvas<clsLabel> label;
    EXPECT_EQ(label.After([](clsLabel& e) { e.Set(&clsLabel::BGTransparent, true); }), "BackStyle=0 ");
    EXPECT_EQ(label.After([](clsLabel& e) { e.Set(&clsLabel::Border, true); }), "BorderStyle=1 ");
    EXPECT_EQ(label.After([](clsLabel& e) { e.Set(&clsLabel::Border3D, true); }), "Appearance=1 ");
    EXPECT_THROW(label.element.Set(&clsLabel::CaptionAlignment, 32768), Failure) << "a widget's number has 16 bits";
    EXPECT_EQ(label.element.CaptionAlignment(), 32768) << "it is stored before the widget refuses it";
}

TEST(AFont, WaitsForItsUpdate)
{
    OnCanvas<clsLabel> label;
    Font font;
    font.Name = "Arial";
    EXPECT_EQ(label.After([&](clsLabel& e) { e.Set(&clsLabel::CaptionFont, font); }), "");
    EXPECT_EQ(label.After([](clsLabel& e) { e.UpdateFont(); }), "Font=Arial ");
}

struct AStatusPicture : testing::Test, OnCanvas<clsBoolPic> {
    using E = clsBoolPic;
};

TEST_F(AStatusPicture, ReadsTheFileOfItsStateAtEachChangeAndNeverGreys)
{
    element.Set(&E::ImageOn, "on.bmp");
    EXPECT_EQ(After([](E& e) { e.Set(&E::ImageOff, "off.bmp"); }), "Picture=off.bmp ");
    EXPECT_EQ(AfterValue(false, false), "Caption= Picture=off.bmp repaint ") << "the first value is always shown";
    EXPECT_EQ(AfterValue(false, true), "");
    EXPECT_EQ(AfterValue(true, false), "Caption= Picture=on.bmp repaint ");
    files.PutText("on.bmp", "");
    AfterValue(false, false);
    EXPECT_EQ(AfterValue(true, false), "Caption= repaint ") << "it is read again, and the old one stays";
    EXPECT_EQ(Shown().Picture()->Path(), "off.bmp");
    element.Set(&E::ImageOff, "");
    EXPECT_EQ(AfterValue(false, false), "Caption= Picture=none repaint ");
}

TEST_F(AStatusPicture, FailsToTakeAFileThatIsNotThereOnlyWhereItIsShown)
{
    element.Set(&E::ImageOn, "gone.bmp");
    EXPECT_THROW(element.Set(&E::ImageOff, "gone.bmp"), Failure);
    EXPECT_EQ(element.ImageOff(), "gone.bmp");
}

// What a load makes of a path that is empty, or of a file that isn't there.
template <class E, class S, class P> void ExpectLoadsWithout(S E::*path, P E::WidgetType::*picture)
{
    OnCanvas<E> shown;
    shown.element.Set(path, "off.bmp");
    ASSERT_NE((shown.Shown().*picture)(), nullptr);
    shown.files.Erase("off.bmp");
    shown.element.WriteControlProps();
    EXPECT_EQ((shown.Shown().*picture)(), nullptr) << "cleared without a word";
    EXPECT_EQ((shown.element.*path)(), "off.bmp") << "and kept";

    shown.element.Set(path, "on.bmp");
    PropertyAccess::Value(shown.element.*path) = "";
    shown.element.WriteControlProps();
    EXPECT_EQ((shown.Shown().*picture)()->Path(), "on.bmp") << "an empty path leaves what is there";
    shown.element.Set(path, "");
    EXPECT_EQ((shown.Shown().*picture)(), nullptr);
    shown.live.PictureFiles = nullptr;
    EXPECT_THROW(shown.element.Set(path, "on.bmp"), Failure);
}

TEST(APictureFile, ThatIsGoneIsClearedAtALoadAndAnEmptyPathIsLeftAlone)
{
    ExpectLoadsWithout(&clsBoolPic::ImageOff, &Panel::Picture);
    ExpectLoadsWithout(&clsCommand::ImageFile, &PushButton::Picture);
    ExpectLoadsWithout(&clsPicture::PictureFile, &Panel::PanelPicture);
}

template <class E> class AnActionButton : public testing::Test, public OnCanvas<E> {
};
using PressedKinds = testing::Types<clsCommand, clsCmdLED>;
TYPED_TEST_SUITE(AnActionButton, PressedKinds);

TYPED_TEST(AnActionButton, TakesItsCaptionAndItsLockFromItsAction)
{
    using E = TypeParam;
    clsCmdDataSource& action = this->element.ClickAction;
    EXPECT_EQ(this->After([&](E&) { action.LabelData.Raise("Run"); }), "");
    this->element.Set(&E::AutoCaption, true);
    EXPECT_EQ(this->After([&](E&) { action.LabelData.Raise("Run"); }), "Caption=Run ");
    EXPECT_EQ(this->element.Caption(), "Run");
    EXPECT_EQ(this->After([&](E&) { action.ToggleEnable.Raise(false); }), "Enabled=false ");
    EXPECT_EQ(this->After([&](E&) { action.ToggleEnable.Raise(true); }), "Enabled=true ");
}

TEST(ACommandWithLed, WritesEveryValueAndGreysItsLampAlone)
{
    OnCanvas<clsCmdLED> button;
    EXPECT_EQ(button.AfterValue(true, false), "Active=true repaint ");
    EXPECT_EQ(button.AfterValue(true, false), "Active=true repaint ");
    EXPECT_EQ(button.AfterValue(true, true), "Active=true LEDColor=-2147483633 repaint ");
    button.element.ClickAction.ToggleEnable.Raise(false);
    EXPECT_TRUE(button.Shown().Active()) << "a disabled button has a live lamp";
    button.journal.Take();
    EXPECT_EQ(button.AfterValue(true, false), "Active=true LEDColor=65280 repaint ");
}

TEST(ACommandWithLed, IsSetBackWhenAClickHasTurnedItsLampOver)
{
    OnCanvas<clsCmdLED> button;
    button.AfterValue(true, false);
    EXPECT_EQ(button.After([](clsCmdLED& e) { e.ClickControl(); }), "Active=true ");
    SwitchLed alone;
    alone.Click();
    EXPECT_TRUE(alone.Active()) << "by itself it turns over";
}

TEST(ACommandWithLed, LoadsWithTheLampAsItIs)
{
    OnCanvas<clsCmdLED> button;
    button.AfterValue(true, false);
    button.element.WriteControlProps();
    EXPECT_TRUE(button.Shown().Active());
}

TEST(ALiveLamp, HearsTheServerByWhatItGotOfARecordThatEndsWithinItsSource)
{
    FakeServer server;
    OnCanvas<clsLEDRect> whole;
    whole.element.BlnDataSource.Set(&clsBlnDataSource::BlnDataType, watch::anyAlarms);
    std::vector<std::uint8_t> record;
    std::int32_t checksum = 0;
    whole.element.SaveToArray(record, checksum);
    OnCanvas<clsLEDRect> lamp(false, &server);
    const std::span<const std::uint8_t> payload = std::span(record).subspan(3);
    EXPECT_THROW(lamp.element.ReadFromArray(payload.first(payload.size() - 3)), Failure) << "ends behind the type";
    server.appAlarms = true;
    server.AlarmFlagChange.Raise("Ridge", 3, true, true);
    EXPECT_TRUE(lamp.Shown().Active());
}

} // namespace
