// Each setting that should changes the picture of its instrument, and no other one does.

#include "tests/qt/picture_of.h"

#include "tests/qt/test.h"

namespace {

constexpr Color pink{0x00FF00FF};
const std::string words = "HIH HIH HIH HIH HIH HIH HIH HIH HIH HIH";

// Other values than that: one, or each way in which a font may differ.
template <class T> std::vector<T> OthersThan(T value)
{
    if constexpr (std::is_same_v<T, bool>) {
        return {!value};
    } else if constexpr (std::is_same_v<T, Color>) {
        return {Color{0x00A000F0}};
    } else if constexpr (std::is_same_v<T, PictureRef>) {
        return {nullptr};
    } else if constexpr (std::is_same_v<T, std::string>) {
        return {"I" + value};
    } else if constexpr (std::is_same_v<T, Font>) {
        std::vector<Font> fonts(5, value);
        fonts[0].SetBold(true);
        fonts[1].Size = 120'000;
        fonts[2].Italic = true;
        fonts[3].Underline = true;
        fonts[4].Strikethrough = true;
        return fonts;
    } else {
        return {static_cast<T>(value + 1)};
    }
}

class Settings : public testing::Test, protected Instruments {
protected:
    QImage Shown(const Widget& widget)
    {
        const QRectF area(0, 0, widget.Width() / twipsPerPixelX, widget.Height() / twipsPerPixelY);
        return PictureOf(widget, area, area.size().toSize(), 1, 0xFFFFFFFF, &kept);
    }

    template <class W, FixedString Name, class T>
    void Check(const char* array, const std::vector<Write>& base, Property<Name, T> W::*property, bool shows)
    {
        const Widget& plain = Add(array, base);
        for (const T& other : OthersThan((static_cast<const W&>(plain).*property)())) {
            Widget& widget = Add(array, base);
            const QImage before = Shown(widget);
            widget.Set(property, other);
            const QImage after = Shown(widget);
            EXPECT_EQ(after != before, shows) << array << ": " << Property<Name, T>::name;
            EXPECT_EQ(OtherPixels(after, Shown(*widget.Clone()), 2), 0) // one on no canvas is drawn afresh
                << array << ": " << Property<Name, T>::name;
        }
    }

    // On an instrument with that base.
    template <class... P> void Show(const char* array, const std::vector<Write>& base, P... properties)
    {
        (Check(array, base, properties, true), ...);
    }
    template <class... P> void Hide(const char* array, const std::vector<Write>& base, P... properties)
    {
        (Check(array, base, properties, false), ...);
    }

    void CheckScale(const char* array);

    const PictureRef picture = PinkPicture();
    KeptPictures kept;
};

TEST_F(Settings, OfLampsShow)
{
    using C = RoundLed;
    Show("ctlLEDRound", {With(&C::InactiveColor, pink)}, &C::Active, &C::ActiveColor, &C::AutoInactiveColor,
         &C::ShowReflection, &C::BevelStyle, &C::Transparent);
    Hide("ctlLEDRound", {}, &C::InactiveColor, &Widget::Tag);
    Show("ctlLEDRound", {With(&C::AutoInactiveColor, false)}, &C::InactiveColor);
    Hide("ctlLEDRound", {With(&C::AutoInactiveColor, false)}, &C::ActiveColor);

    using R = RectLed;
    const Write text = With(&R::Caption, words);
    Show("ctlLEDRect", {text, With(&R::InactiveColor, pink)}, &R::Active, &R::ActiveColor, &R::AutoInactiveColor,
         &R::ShowReflection, &R::BevelStyle, &R::Caption, &R::CaptionOffColor, &R::CaptionWordWrap);
    Show("ctlLEDRect", {With(&R::Caption, "HIH")}, &R::CaptionAlignment, &R::CenterLabelFont);
    Show("ctlLEDRect", {With(&R::AutoInactiveColor, false)}, &R::InactiveColor);
    Hide("ctlLEDRect", {text}, &R::InactiveColor, &R::CaptionOnColor);
    Show("ctlLEDRect", {text, With(&R::Active, true)}, &R::CaptionOnColor);
}

TEST_F(Settings, OfFacesShow)
{
    using B = PushButton;
    const Write small = [](Widget& widget) { widget.Move(0, 0, 900, 900); };
    const Write button = With(&B::Picture, picture);
    Show("ctlCommand", {With(&B::Caption, "HIH")}, &B::Caption, &B::ForeColor, &B::BackColor, &B::CaptionAlignment,
         &B::Font, &Widget::Enabled);
    Show("ctlCommand", {small, With(&B::Caption, words)}, &B::CaptionWordWrap);
    Show("ctlCommand", {button, With(&B::PictureMaskColorValue, pink), With(&B::Caption, "HIH")}, &B::Picture,
         &B::PictureUseMaskFlag, &B::ImageAlignment, &Widget::Enabled);
    Show("ctlCommand", {button, With(&B::PictureMaskColorValue, pink), With(&B::PictureUseMaskFlag, true)},
         &B::PictureMaskColorValue);

    using S = SwitchLed;
    Show("ctlCmdLED", {With(&S::Caption, "HIH")}, &S::Active, &S::LEDColor, &S::LEDAlignment, &S::Caption,
         &S::CaptionColor, &S::CaptionFont, &Widget::Enabled);
    Hide("ctlCmdLED", {With(&S::Caption, "HIH")}, &S::CaptionMargin, &S::BorderSize);

    for (Widget* widget : {&Add("ctlCommand", {With(&B::Caption, "HIH"), With(&B::ForeColor, pink)}),
                           &Add("ctlCmdLED", {With(&S::Caption, "HIH"), With(&S::CaptionColor, pink)})}) {
        const double enabled = PinkOf(Shown(*widget));
        widget->Set(&Widget::Enabled, false);
        EXPECT_LT(PinkOf(Shown(*widget)), 0.8 * enabled) << widget->Name();
    }

    using P = Panel;
    for (const char* array : {"ctlBlnPic", "ctlPicture"}) {
        const Write mask = With(&P::PictureMaskColorValue, pink);
        Show(array, {With(&P::Caption, "HIH")}, &P::Caption, &P::ForeColor, &P::BackColor, &P::Font,
             &P::CaptionAlignment, &P::BevelStyle);
        Show(array, {small, With(&P::Caption, words)}, &P::CaptionWordWrap);
        Show(array, {mask, With(&P::Picture, picture)}, &P::Picture, &P::PictureUseMaskFlag, &P::ImageAlignment);
        Show(array, {mask, With(&P::PanelPicture, picture)}, &P::PanelPicture, &P::PictureUseMaskFlag,
             &P::PictureFillModeCode);
        Show(array, {mask, With(&P::PanelPicture, picture), With(&P::PictureUseMaskFlag, true)},
             &P::PictureMaskColorValue);
    }

    using T = TextLabel;
    for (const char* array : {"ctlLabel", "ctlStatusLabel"}) {
        const Write border = With(&T::BorderStyle, 1);
        Show(array, {border, With(&T::BackStyle, 1), With(&T::Caption, "HIH")}, &T::Caption, &T::ForeColor,
             &T::BackColor, &T::Alignment, &T::Font, &T::Appearance, &Widget::Enabled);
        Show(array, {small, With(&T::BackStyle, 0), With(&T::BackColor, pink), With(&T::Caption, words)}, &T::WordWrap,
             &T::BackStyle, &T::BorderStyle);
        Hide(array, {With(&T::BorderStyle, 0)}, &T::Appearance);
    }

    using N = AnalogDisplay;
    Show("ctlMeterText", {With(&N::DisplayValue, 11)}, &N::DisplayValue, &N::DisplayPrecision, &N::Alignment,
         &N::BackGroundColor, &N::BorderStyle, &N::FontColor, &N::Font, &N::ErrorActive);
    Hide("ctlMeterText", {}, &N::ErrorText);
    Show("ctlMeterText", {With(&N::ErrorActive, true)}, &N::ErrorText);
}

void Settings::CheckScale(const char* array)
{
    using G = ScaleGauge;
    const std::vector<Write> base = {With(&G::SectionCount, 4), With(&G::Position, 50),
                                     With(&G::BorderStyle, bevels::raised)};
    Show(array, base, &G::Position, &G::PositionMax, &G::PositionMin, &G::SectionEnd1, &G::SectionEnd2, &G::SectionEnd3,
         &G::SectionColor1, &G::SectionColor2, &G::SectionColor3, &G::SectionColor4, &G::SectionCount,
         &G::SectionBandWidth, &G::PointerSize, &G::PointerColor, &G::TickLabelMargin, &G::TickLabelPrecision,
         &G::TickLabelColorValue, &G::TickLabelFont, &G::TickValuesVisible, &G::ReverseScaleFlag, &G::Transparent,
         &G::BackGroundColor, &G::BorderStyle);
    Show(array, {}, &G::SectionEnd4, &G::SectionColor5);
    Hide(array, {}, &G::TickMajorCount, &G::TickMinorCount, &G::ShowTicksMajor, &G::ShowTicksMinor);
    Hide(array, {With(&G::Transparent, true)}, &G::BackGroundColor, &G::BorderStyle);
    Font none;
    none.Size = 0;
    const Widget& bare = Add(array, {With(&G::TickLabelFont, none)});
    EXPECT_EQ(Shown(bare), Shown(Add(array, {With(&G::TickValuesVisible, false)}))) << array;
}

TEST_F(Settings, OfMetersShow)
{
    using A = AngularGauge;
    CheckScale("ctlMeterAngle");
    Show("ctlMeterAngle", {With(&A::Position, 50), With(&A::ShowHub, true)}, &A::ArcStartDegrees, &A::ArcRangeDegrees,
         &A::OffsetX, &A::OffsetY, &A::ArcRadius, &A::HubSize, &A::HubColor, &A::ShowHub, &A::PointerStyleCode,
         &A::PointerMargin, &A::ShowOuterArcRadius, &A::ShowInnerArcRadius);
    Hide("ctlMeterAngle", {}, &A::TickMajorLength, &A::TickMinorLength, &A::TickMinorAlignment, &A::TickMargin,
         &A::PanelFaceStyle, &A::CurrentMax, &A::CurrentMin);
    using L = LinearGauge;
    CheckScale("ctlMeterLinear");
    Show("ctlMeterLinear", {}, &L::Orientation, &L::TickLocation, &L::PointerOffset, &L::EndsMargin);
    Hide("ctlMeterLinear", {}, &L::ShowTicksAxis);
}

// What is pink in it goes to that side.
TEST_F(Settings, OfPlacesMoveWhatTheySayToItsSide)
{
    using G = ScaleGauge;
    using A = AngularGauge;
    const Write pointer = With(&G::PointerColor, pink);
    const Write numbers = With(&G::TickLabelColorValue, pink);
    const struct {
        const char* array;
        std::vector<Write> base;
        Write change;
        QPoint least; // pixels
    } cases[] = {
        {"ctlMeterAngle", {pointer}, With(&A::OffsetX, 9), {2, 0}},
        {"ctlMeterAngle", {pointer}, With(&A::OffsetY, 9), {0, 2}},
        {"ctlMeterAngle", {pointer}, With(&A::PointerMargin, 9), {2, -2}}, // its tip is at the lower left
        {"ctlMeterLinear", {numbers}, With(&G::TickLabelMargin, 9), {0, 2}},
        {"ctlMeterLinear", {numbers}, With(&LinearGauge::TickLocation, tick_locations::topLeft), {0, -2}},
        {"ctlCommand",
         {With(&PushButton::Picture, picture)},
         With(&PushButton::ImageAlignment, face_places::leftTop),
         {-2, 0}},
    };
    for (const auto& each : cases) {
        Widget& widget = Add(each.array, each.base);
        const auto middle = [&] {
            return BoxOf(Shown(widget),
                         [](QRgb pixel) { return qRed(pixel) > 150 && qBlue(pixel) > 150 && qGreen(pixel) < 100; })
                .center();
        };
        const QPoint before = middle();
        each.change(widget);
        const QPoint moved = middle() - before;
        EXPECT_GE(moved.x() * each.least.x(), 2 * std::abs(each.least.x())) << &each - cases;
        EXPECT_GE(moved.y() * each.least.y(), 2 * std::abs(each.least.y())) << &each - cases;
    }
}

} // namespace
