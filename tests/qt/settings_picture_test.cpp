// Each setting that should changes the picture of its instrument, and to the right side; no other one does.

#include "tests/qt/picture_of.h"

#include "document/kinds.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/face_layout.h"
#include "widgets/linear_gauge.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QTemporaryDir>

namespace {

constexpr Color pink{0x00FF00FF};
constexpr Color grey{0x00808080};
const std::string words = "HIH HIH HIH HIH HIH HIH HIH HIH HIH HIH";

// A setting that is written.
struct Change {
    std::string name;
    Write write;
};

template <class W, FixedString Name, class T> Change To(Property<Name, T> W::*property, std::type_identity_t<T> value)
{
    return {std::string(Property<Name, T>::name), With(property, std::move(value))};
}

template <class W, FixedString Name> Change To(Property<Name, Font> W::*property, void (*write)(Font&))
{
    return {std::string(Property<Name, Font>::name), [=](Widget& widget) {
                Font font = (static_cast<W&>(widget).*property)();
                write(font);
                widget.Set(property, font);
            }};
}

Change Both(const Change& one, const Change& other)
{
    return {one.name + " and " + other.name, [=](Widget& widget) { one.write(widget), other.write(widget); }};
}

// What is measured of a picture, mostly of its pixels as far as they are pink.
struct Measures {
    explicit Measures(const QImage& image)
    {
        const QPointF middle(image.width() / 2.0, image.height() / 2.0);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                const double share = std::max(0, std::min(qRed(pixel), qBlue(pixel)) - qGreen(pixel)) / 255.0;
                const QPointF place = QPointF(x + 0.5, y + 0.5) - middle;
                amount += share;
                right += share * place.x();
                down += share * place.y();
                far += share * std::hypot(place.x(), place.y());
                light += qGray(pixel) / 255.0;
                lit -= qGray(pixel) / 255.0 * (place.x() + place.y());
            }
        }
        if (amount > 0) {
            right /= amount;
            down /= amount;
            far /= amount;
        }
    }

    double amount = 0;
    double right = 0; // their middle's place, from the picture's
    double down = 0;
    double far = 0;   // their mean distance from the picture's middle
    double light = 0; // of all pixels
    double lit = 0;   // how much lighter all is at the upper left
};

// What a change makes of it: by so much at least.
struct Effect {
    double Measures::*what; // null: that it isn't the same, or is
    double least;           // 0 for the same
};
using M = Measures;
constexpr Effect more{&M::amount, 0.5}, less{&M::amount, -0.5}, right{&M::right, 0.5}, left{&M::right, -0.5};
constexpr Effect down{&M::down, 0.5}, up{&M::down, -0.5}, outwards{&M::far, 0.5}, inwards{&M::far, -0.5};
constexpr Effect lighter{&M::light, 5}, darker{&M::light, -5}, raised{&M::lit, 5}, lowered{&M::lit, -5};
constexpr Effect other{nullptr, 1}, same{nullptr, 0};

struct Row {
    Change change;
    Effect effect;
};

class Settings : public testing::Test {
protected:
    Settings()
    {
        AddWidgetArrays(canvas);
        QImage image(20, 16, QImage::Format_RGB32);
        image.fill(0xFFFF00FF);
        const QString path = directory.filePath(QStringLiteral("pink.png"));
        image.save(path);
        picture = QtPictures().LoadPicture(path.toStdString());
    }

    // Each of the rows, on an instrument with that base.
    void Check(const char* array, const std::vector<Change>& base, const std::vector<Row>& rows)
    {
        for (const Row& row : rows) {
            Widget& widget = canvas.FindArray(array)->Load(++m_index);
            for (const Change& change : base) {
                change.write(widget);
            }
            const QRectF area(0, 0, widget.Width() / twipsPerPixelX, widget.Height() / twipsPerPixelY);
            const auto shown = [&](const Widget& each) {
                return PictureOf(each, area, area.size().toSize(), 1, 0xFFFFFFFF, &kept);
            };
            const QImage before = shown(widget);
            row.change.write(widget);
            const QImage after = shown(widget);
            EXPECT_EQ(OtherPixels(after, shown(*widget.Clone()), 2), 0) // one on no canvas is drawn afresh
                << array << ": " << row.change.name;
            if (row.effect.what == nullptr) {
                EXPECT_EQ(after == before, row.effect.least == 0) << array << ": " << row.change.name;
                continue;
            }
            const double change = Measures(after).*row.effect.what - Measures(before).*row.effect.what;
            EXPECT_GE(change / row.effect.least, 1) << array << ": " << row.change.name;
        }
    }

    // Of a text in pink.
    template <class W, FixedString Name>
    void CheckFont(const char* array, Property<Name, Font> W::*font, const std::vector<Change>& base)
    {
        Check(array, base,
              {{To(font, [](Font& each) { each.SetBold(true); }), more},
               {To(font, [](Font& each) { each.Size = 120'000; }), more},
               {To(font, [](Font& each) { each.Italic = true; }), other},
               {To(font, [](Font& each) { each.Underline = true; }), down},
               {To(font, [](Font& each) { each.Strikethrough = true; }), more}});
    }

    void CheckLabel(const char* array);
    void CheckPanel(const char* array);
    void CheckScale(const char* array);

    QTemporaryDir directory;
    PictureRef picture;
    const Change large{"size", [](Widget& widget) { widget.Move(0, 0, 900, 900); }};
    const Change locked = To(&Widget::Enabled, false);

private:
    Canvas canvas;
    KeptPictures kept;
    std::int32_t m_index = 0;
};

// clang-format off
TEST_F(Settings, OfARoundLampShow)
{
    using L = RoundLed;
    const Change manual = To(&L::AutoInactiveColor, false);
    Check("ctlLEDRound", {large, To(&L::ActiveColor, pink), To(&L::InactiveColor, grey)},
        {{To(&L::Active, true), more}, {manual, less}, {To(&L::ShowReflection, false), lowered},
        {To(&L::BevelStyle, bevels::raised), raised}, {To(&L::BevelStyle, bevels::none), more},
        {To(&L::Transparent, false), darker}, {To(&L::Tag, "other"), same}});
    Check("ctlLEDRound", {large, manual}, {{To(&L::InactiveColor, pink), more}});
    Check("ctlLEDRound", {large}, {{To(&L::InactiveColor, pink), same}});
}

TEST_F(Settings, OfARectangularLampShow)
{
    using L = RectLed;
    const Change manual = To(&L::AutoInactiveColor, false);
    const std::vector<Change> legend = {To(&L::Caption, "HIH"), To(&L::CaptionOffColor, pink), To(&L::CaptionOnColor, grey)};
    Check("ctlLEDRect", {To(&L::ActiveColor, pink), To(&L::InactiveColor, grey)}, {{To(&L::Active, true), more},
        {manual, less}, {To(&L::ShowReflection, false), lowered}, {To(&L::BevelStyle, bevels::raised), raised}});
    Check("ctlLEDRect", {To(&L::Active, true), To(&L::BevelStyle, bevels::none)},
        {{To(&L::BevelStyle, bevels::raised), raised}, {To(&L::BevelStyle, bevels::lowered), lowered}});
    Check("ctlLEDRect", {manual}, {{To(&L::InactiveColor, pink), more}});
    Check("ctlLEDRect", legend, {{To(&L::Caption, "HIHIH"), more}, {To(&L::Active, true), less},
        {To(&L::CaptionOffColor, grey), less}, {To(&L::CaptionAlignment, lamp_alignments::right), right},
        {To(&L::CaptionAlignment, lamp_alignments::left), left}});
    Check("ctlLEDRect", {large, To(&L::Caption, words), To(&L::CaptionOffColor, pink)},
        {{To(&L::CaptionWordWrap, true), more}});
    CheckFont("ctlLEDRect", &L::CenterLabelFont, legend);
}

TEST_F(Settings, OfAButtonShow)
{
    using B = PushButton;
    using S = SwitchLed;
    const std::vector<Change> caption = {To(&B::Caption, "HIH"), To(&B::ForeColor, pink)};
    const std::vector<Change> switched = {To(&S::Caption, "HIH"), To(&S::CaptionColor, pink)};
    Check("ctlCommand", caption, {{To(&B::Caption, "HIHIH"), more}, {To(&B::ForeColor, grey), less},
        {To(&B::CaptionAlignment, face_places::leftTop), left}, {locked, less}, {To(&B::BackColor, pink), more}});
    Check("ctlCommand", {large, To(&B::Caption, words), To(&B::ForeColor, pink)},
        {{To(&B::CaptionWordWrap, 1), more}});
    Check("ctlCommand", {To(&B::PictureMaskColorValue, pink), To(&B::Picture, picture), To(&B::Caption, "HIH")},
        {{To(&B::PictureUseMaskFlag, true), less}, {To(&B::ImageAlignment, face_places::rightOfCaption), right},
        {locked, less}});
    CheckFont("ctlCommand", &B::Font, caption);
    Check("ctlCmdLED", {To(&S::LEDColor, pink), locked}, {{To(&S::Active, true), more},
        {To(&S::LEDColor, grey), less}, {To(&S::LEDAlignment, lamp_sides::bottom), down},
        {To(&S::LEDAlignment, lamp_sides::left), left}, {To(&S::LEDAlignment, lamp_sides::right), right},
        {Both(To(&S::CaptionMargin, 9), To(&S::BorderSize, 9)), same}});
    Check("ctlCmdLED", switched, {{To(&S::Caption, "HIHIH"), more}, {To(&S::CaptionColor, grey), less},
        {locked, less}});
    CheckFont("ctlCmdLED", &S::CaptionFont, switched);
}

void Settings::CheckLabel(const char* array)
{
    using T = TextLabel;
    const std::vector<Change> text = {To(&T::Caption, "HIH"), To(&T::ForeColor, pink)};
    const Change border = To(&T::BorderStyle, 1);
    Check(array, text, {{To(&T::Caption, "HIHIH"), more}, {To(&T::ForeColor, grey), less},
        {To(&T::Alignment, label_alignments::right), right}, {locked, less}});
    Check(array, {To(&T::BackStyle, 1), To(&T::BackColor, pink), To(&T::Caption, "")},
        {{To(&T::BackColor, grey), less}, {To(&T::BackStyle, 0), less}, {border, darker},
        {To(&T::Appearance, 1), same}});
    Check(array, {border}, {{To(&T::Appearance, 1), lowered}});
    Check(array, {large, To(&T::Caption, words), To(&T::ForeColor, pink)}, {{To(&T::WordWrap, true), more}});
    CheckFont(array, &T::Font, text);
}

void Settings::CheckPanel(const char* array)
{
    using P = Panel;
    const Change mask = To(&P::PictureMaskColorValue, pink);
    const std::vector<Change> caption = {To(&P::Caption, "HIH"), To(&P::ForeColor, pink)};
    Check(array, caption, {{To(&P::Caption, "HIHIH"), more}, {To(&P::ForeColor, grey), less},
        {To(&P::CaptionAlignment, face_places::leftTop), left},
        {To(&P::CaptionAlignment, face_places::centerBottom), down},
        {To(&P::BevelStyle, panel_bevels::lowered), lowered}, {To(&P::BevelStyle, panel_bevels::none), lowered},
        {To(&P::BackColor, pink), more}});
    Check(array, {To(&P::Caption, words), To(&P::ForeColor, pink)}, {{To(&P::CaptionWordWrap, 1), more}});
    Check(array, {mask, To(&P::Picture, picture)}, {{To(&P::PictureUseMaskFlag, true), less},
        {To(&P::ImageAlignment, face_places::leftTop), left},
        {To(&P::ImageAlignment, face_places::centerBottom), down}});
    Check(array, {mask, To(&P::PanelPicture, picture)}, {{To(&P::PictureUseMaskFlag, true), less},
        {To(&P::PictureFillModeCode, fill_modes::stretched), more},
        {To(&P::PictureFillModeCode, fill_modes::tiled), more}});
    CheckFont(array, &P::Font, caption);
}

TEST_F(Settings, OfALabelOrAPictureShow)
{
    CheckLabel("ctlLabel");
    CheckLabel("ctlStatusLabel");
    CheckPanel("ctlBlnPic");
    CheckPanel("ctlPicture");
}

void Settings::CheckScale(const char* array)
{
    using G = ScaleGauge;
    const Change percent{"percent", [](Widget& widget) {
        widget.Set(&G::PositionMax, 100), widget.Set(&G::SectionEnd1, 20), widget.Set(&G::SectionEnd2, 40);
        widget.Set(&G::SectionEnd3, 60), widget.Set(&G::SectionEnd4, 80);
    }};
    const Change noPointer = Both(percent, To(&G::PointerSize, 0));
    const Change seven = Both(To(&G::TickMajorCount, 7), To(&G::TickMinorCount, 7));
    const std::vector<Change> numbers = {percent, To(&G::TickLabelColorValue, pink)};
    Check(array, {percent, To(&G::PointerColor, pink), To(&G::Position, 50)}, {{To(&G::Position, 90), right},
        {To(&G::PositionMax, 200), left}, {To(&G::PositionMin, -100), right}, {To(&G::PointerSize, 16), more},
        {To(&G::PointerColor, grey), less}});
    Check(array, numbers, {{To(&G::TickValuesVisible, false), less}, {To(&G::TickLabelPrecision, 2), more},
        {To(&G::TickLabelMargin, 6), down}, {To(&G::PositionMax, 1'000), more},
        {To(&G::TickLabelColorValue, grey), less},
        {Both(seven, Both(To(&G::ShowTicksMajor, true), To(&G::ShowTicksMinor, true))), same}});
    CheckFont(array, &G::TickLabelFont, numbers);
    Check(array, {noPointer, To(&G::SectionColor1, pink)}, {{To(&G::SectionBandWidth, 24), more},
        {To(&G::SectionBandWidth, 1), less}, {To(&G::SectionEnd1, 35), more},
        {To(&G::ReverseScaleFlag, true), right}, {To(&G::SectionCount, 1), more},
        {Both(To(&G::SectionColor1, grey), To(&G::SectionColor2, pink)), right}});
    Check(array, {noPointer, To(&G::SectionColor2, pink)}, {{To(&G::SectionEnd2, 55), right},
        {Both(To(&G::SectionColor2, grey), To(&G::SectionColor3, pink)), right}});
    Check(array, {noPointer, To(&G::SectionColor3, pink)}, {{To(&G::SectionEnd3, 75), right},
        {Both(To(&G::SectionColor3, grey), To(&G::SectionColor4, pink)), right}});
    Check(array, {noPointer, To(&G::SectionColor4, pink)}, {{To(&G::SectionEnd4, 95), right},
        {To(&G::SectionColor4, grey), less}});
    Check(array, {noPointer, To(&G::SectionColor5, pink)}, {{To(&G::SectionEnd4, 95), less}});
    Check(array, {To(&G::BackGroundColor, pink), To(&G::BorderStyle, bevels::none)},
        {{To(&G::Transparent, true), less}, {To(&G::BackGroundColor, grey), less},
        {To(&G::BorderStyle, bevels::raised), raised}, {To(&G::BorderStyle, bevels::lowered), lowered}});
}

TEST_F(Settings, OfADialShow)
{
    using A = AngularGauge;
    CheckScale("ctlMeterAngle");
    Check("ctlMeterAngle", {To(&A::HubColor, pink), To(&A::ShowHub, true)}, {{To(&A::HubSize, 30), more},
        {To(&A::HubColor, grey), less}, {To(&A::ShowHub, false), less}, {To(&A::PointerColor, pink), outwards}});
    Check("ctlMeterAngle",
        {To(&A::TickLabelColorValue, pink), To(&A::TickValuesVisible, false), To(&A::ShowOuterArcRadius, false)},
        {{To(&A::ShowInnerArcRadius, true), more}, {To(&A::ShowOuterArcRadius, true), more}});
    Check("ctlMeterAngle",
        {To(&A::TickLabelColorValue, pink), To(&A::TickValuesVisible, false), To(&A::ShowOuterArcRadius, true)},
        {{To(&A::ShowInnerArcRadius, true), inwards}});
    Check("ctlMeterAngle", {To(&A::SectionColor1, pink), To(&A::PointerSize, 0)},
        {{To(&A::ArcStartDegrees, 180), up}, {To(&A::ArcRangeDegrees, 180), less}, {To(&A::OffsetX, 9), right},
        {To(&A::OffsetY, 9), down}, {To(&A::ArcRadius, 48), outwards}});
    Check("ctlMeterAngle", {To(&A::PointerColor, pink), To(&A::Position, 50)},
        {{To(&A::PointerStyleCode, pointer_styles::arrow), inwards},
        {To(&A::PointerStyleCode, pointer_styles::triangle), outwards}, {To(&A::PointerMargin, 12), inwards},
        {Both(To(&A::CurrentMax, 3), To(&A::CurrentMin, 3)), same},
        {Both(To(&A::PanelFaceStyle, 2), To(&A::TickMargin, 4)), same},
        {Both(To(&A::TickMajorLength, 9), To(&A::TickMinorLength, 9)), same},
        {To(&A::TickMinorAlignment, tick_alignments::inside), same}});
}

TEST_F(Settings, OfABandOrANumberShow)
{
    using L = LinearGauge;
    using N = AnalogDisplay;
    const std::vector<Change> number = {To(&N::FontColor, pink), To(&N::DisplayValue, 11), To(&N::Alignment, number_alignments::center)};
    CheckScale("ctlMeterLinear");
    Check("ctlMeterLinear", {To(&L::PointerColor, pink), To(&L::Position, 50)}, {{To(&L::PointerOffset, 8), up},
        {To(&L::ShowTicksAxis, true), same}});
    Check("ctlMeterLinear", {To(&L::TickLabelColorValue, pink)},
        {{To(&L::TickLocation, tick_locations::topLeft), up}});
    Check("ctlMeterLinear", {To(&L::SectionColor1, pink)}, {{To(&L::EndsMargin, 40), less}});
    Check("ctlMeterText", number, {{To(&N::DisplayValue, 1'111), more}, {To(&N::DisplayPrecision, 4), more},
        {To(&N::Alignment, number_alignments::left), left}, {To(&N::Alignment, number_alignments::right), right},
        {To(&N::FontColor, grey), less}, {To(&N::BackGroundColor, pink), more},
        {To(&N::BorderStyle, bevels::raised), raised}, {To(&N::BorderStyle, bevels::none), lighter},
        {To(&N::ErrorActive, true), other}, {To(&N::ErrorText, "none at all"), same}});
    CheckFont("ctlMeterText", &N::Font, number);
}
// clang-format on

} // namespace
