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
    std::function<void(Widget&)> write;
};

template <class W, FixedString Name, class T> Change With(Property<Name, T> W::*property, std::type_identity_t<T> value)
{
    return {std::string(Property<Name, T>::name), [=](Widget& widget) { widget.Set(property, value); }};
}

template <class W, FixedString Name> Change With(Property<Name, Font> W::*property, void (*write)(Font&))
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
            const auto shown = [&] { return PictureOf(widget, area, area.size().toSize()); };
            const QImage before = shown();
            row.change.write(widget);
            const QImage after = shown();
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
              {{With(font, [](Font& each) { each.SetBold(true); }), more},
               {With(font, [](Font& each) { each.Size = 120'000; }), more},
               {With(font, [](Font& each) { each.Italic = true; }), other},
               {With(font, [](Font& each) { each.Underline = true; }), down},
               {With(font, [](Font& each) { each.Strikethrough = true; }), more}});
    }

    void CheckLabel(const char* array);
    void CheckPanel(const char* array);
    void CheckScale(const char* array);

    QTemporaryDir directory;
    PictureRef picture;
    const Change large{"size", [](Widget& widget) { widget.Move(0, 0, 900, 900); }};
    const Change locked = With(&Widget::Enabled, false);

private:
    Canvas canvas;
    std::int32_t m_index = 0;
};

// clang-format off
TEST_F(Settings, OfARoundLampShow)
{
    using L = RoundLed;
    const Change manual = With(&L::AutoInactiveColor, false);
    Check("ctlLEDRound", {large, With(&L::ActiveColor, pink), With(&L::InactiveColor, grey)},
        {{With(&L::Active, true), more}, {manual, less}, {With(&L::ShowReflection, false), lowered},
        {With(&L::BevelStyle, bevels::raised), raised}, {With(&L::BevelStyle, bevels::none), more},
        {With(&L::Transparent, false), darker}, {With(&L::Tag, "other"), same}});
    Check("ctlLEDRound", {large, manual}, {{With(&L::InactiveColor, pink), more}});
    Check("ctlLEDRound", {large}, {{With(&L::InactiveColor, pink), same}});
}

TEST_F(Settings, OfARectangularLampShow)
{
    using L = RectLed;
    const Change manual = With(&L::AutoInactiveColor, false);
    const std::vector<Change> legend = {With(&L::Caption, "HIH"), With(&L::CaptionOffColor, pink), With(&L::CaptionOnColor, grey)};
    Check("ctlLEDRect", {With(&L::ActiveColor, pink), With(&L::InactiveColor, grey)}, {{With(&L::Active, true), more},
        {manual, less}, {With(&L::ShowReflection, false), lowered}, {With(&L::BevelStyle, bevels::raised), raised}});
    Check("ctlLEDRect", {With(&L::Active, true), With(&L::BevelStyle, bevels::none)},
        {{With(&L::BevelStyle, bevels::raised), raised}, {With(&L::BevelStyle, bevels::lowered), lowered}});
    Check("ctlLEDRect", {manual}, {{With(&L::InactiveColor, pink), more}});
    Check("ctlLEDRect", legend, {{With(&L::Caption, "HIHIH"), more}, {With(&L::Active, true), less},
        {With(&L::CaptionOffColor, grey), less}, {With(&L::CaptionAlignment, lamp_alignments::right), right},
        {With(&L::CaptionAlignment, lamp_alignments::left), left}});
    Check("ctlLEDRect", {large, With(&L::Caption, words), With(&L::CaptionOffColor, pink)},
        {{With(&L::CaptionWordWrap, true), more}});
    CheckFont("ctlLEDRect", &L::CenterLabelFont, legend);
}

TEST_F(Settings, OfAButtonShow)
{
    using B = PushButton;
    using S = SwitchLed;
    const std::vector<Change> caption = {With(&B::Caption, "HIH"), With(&B::ForeColor, pink)};
    const std::vector<Change> switched = {With(&S::Caption, "HIH"), With(&S::CaptionColor, pink)};
    Check("ctlCommand", caption, {{With(&B::Caption, "HIHIH"), more}, {With(&B::ForeColor, grey), less},
        {With(&B::CaptionAlignment, face_places::leftTop), left}, {locked, less}, {With(&B::BackColor, pink), more}});
    Check("ctlCommand", {large, With(&B::Caption, words), With(&B::ForeColor, pink)},
        {{With(&B::CaptionWordWrap, 1), more}});
    Check("ctlCommand", {With(&B::PictureMaskColorValue, pink), With(&B::Picture, picture), With(&B::Caption, "HIH")},
        {{With(&B::PictureUseMaskFlag, true), less}, {With(&B::ImageAlignment, face_places::rightOfCaption), right},
        {locked, less}});
    CheckFont("ctlCommand", &B::Font, caption);
    Check("ctlCmdLED", {With(&S::LEDColor, pink), locked}, {{With(&S::Active, true), more},
        {With(&S::LEDColor, grey), less}, {With(&S::LEDAlignment, lamp_sides::bottom), down},
        {With(&S::LEDAlignment, lamp_sides::left), left}, {With(&S::LEDAlignment, lamp_sides::right), right},
        {Both(With(&S::CaptionMargin, 9), With(&S::BorderSize, 9)), same}});
    Check("ctlCmdLED", switched, {{With(&S::Caption, "HIHIH"), more}, {With(&S::CaptionColor, grey), less},
        {locked, less}});
    CheckFont("ctlCmdLED", &S::CaptionFont, switched);
}

void Settings::CheckLabel(const char* array)
{
    using T = TextLabel;
    const std::vector<Change> text = {With(&T::Caption, "HIH"), With(&T::ForeColor, pink)};
    const Change border = With(&T::BorderStyle, 1);
    Check(array, text, {{With(&T::Caption, "HIHIH"), more}, {With(&T::ForeColor, grey), less},
        {With(&T::Alignment, label_alignments::right), right}, {locked, less}});
    Check(array, {With(&T::BackStyle, 1), With(&T::BackColor, pink), With(&T::Caption, "")},
        {{With(&T::BackColor, grey), less}, {With(&T::BackStyle, 0), less}, {border, darker},
        {With(&T::Appearance, 1), same}});
    Check(array, {border}, {{With(&T::Appearance, 1), lowered}});
    Check(array, {large, With(&T::Caption, words), With(&T::ForeColor, pink)}, {{With(&T::WordWrap, true), more}});
    CheckFont(array, &T::Font, text);
}

void Settings::CheckPanel(const char* array)
{
    using P = Panel;
    const Change mask = With(&P::PictureMaskColorValue, pink);
    const std::vector<Change> caption = {With(&P::Caption, "HIH"), With(&P::ForeColor, pink)};
    Check(array, caption, {{With(&P::Caption, "HIHIH"), more}, {With(&P::ForeColor, grey), less},
        {With(&P::CaptionAlignment, face_places::leftTop), left},
        {With(&P::CaptionAlignment, face_places::centerBottom), down},
        {With(&P::BevelStyle, panel_bevels::lowered), lowered}, {With(&P::BevelStyle, panel_bevels::none), lowered},
        {With(&P::BackColor, pink), more}});
    Check(array, {With(&P::Caption, words), With(&P::ForeColor, pink)}, {{With(&P::CaptionWordWrap, 1), more}});
    Check(array, {mask, With(&P::Picture, picture)}, {{With(&P::PictureUseMaskFlag, true), less},
        {With(&P::ImageAlignment, face_places::leftTop), left},
        {With(&P::ImageAlignment, face_places::centerBottom), down}});
    Check(array, {mask, With(&P::PanelPicture, picture)}, {{With(&P::PictureUseMaskFlag, true), less},
        {With(&P::PictureFillModeCode, fill_modes::stretched), more},
        {With(&P::PictureFillModeCode, fill_modes::tiled), more}});
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
    const Change noPointer = Both(percent, With(&G::PointerSize, 0));
    const Change seven = Both(With(&G::TickMajorCount, 7), With(&G::TickMinorCount, 7));
    const std::vector<Change> numbers = {percent, With(&G::TickLabelColorValue, pink)};
    Check(array, {percent, With(&G::PointerColor, pink), With(&G::Position, 50)}, {{With(&G::Position, 90), right},
        {With(&G::PositionMax, 200), left}, {With(&G::PositionMin, -100), right}, {With(&G::PointerSize, 16), more},
        {With(&G::PointerColor, grey), less}});
    Check(array, numbers, {{With(&G::TickValuesVisible, false), less}, {With(&G::TickLabelPrecision, 2), more},
        {With(&G::TickLabelMargin, 6), down}, {With(&G::PositionMax, 1'000), more},
        {With(&G::TickLabelColorValue, grey), less},
        {Both(seven, Both(With(&G::ShowTicksMajor, true), With(&G::ShowTicksMinor, true))), same}});
    CheckFont(array, &G::TickLabelFont, numbers);
    Check(array, {noPointer, With(&G::SectionColor1, pink)}, {{With(&G::SectionBandWidth, 24), more},
        {With(&G::SectionBandWidth, 1), less}, {With(&G::SectionEnd1, 35), more},
        {With(&G::ReverseScaleFlag, true), right}, {With(&G::SectionCount, 1), more},
        {Both(With(&G::SectionColor1, grey), With(&G::SectionColor2, pink)), right}});
    Check(array, {noPointer, With(&G::SectionColor2, pink)}, {{With(&G::SectionEnd2, 55), right},
        {Both(With(&G::SectionColor2, grey), With(&G::SectionColor3, pink)), right}});
    Check(array, {noPointer, With(&G::SectionColor3, pink)}, {{With(&G::SectionEnd3, 75), right},
        {Both(With(&G::SectionColor3, grey), With(&G::SectionColor4, pink)), right}});
    Check(array, {noPointer, With(&G::SectionColor4, pink)}, {{With(&G::SectionEnd4, 95), right},
        {With(&G::SectionColor4, grey), less}});
    Check(array, {noPointer, With(&G::SectionColor5, pink)}, {{With(&G::SectionEnd4, 95), less}});
    Check(array, {With(&G::BackGroundColor, pink), With(&G::BorderStyle, bevels::none)},
        {{With(&G::Transparent, true), less}, {With(&G::BackGroundColor, grey), less},
        {With(&G::BorderStyle, bevels::raised), raised}, {With(&G::BorderStyle, bevels::lowered), lowered}});
}

TEST_F(Settings, OfADialShow)
{
    using A = AngularGauge;
    CheckScale("ctlMeterAngle");
    Check("ctlMeterAngle", {With(&A::HubColor, pink), With(&A::ShowHub, true)}, {{With(&A::HubSize, 30), more},
        {With(&A::HubColor, grey), less}, {With(&A::ShowHub, false), less}, {With(&A::PointerColor, pink), outwards}});
    Check("ctlMeterAngle",
        {With(&A::TickLabelColorValue, pink), With(&A::TickValuesVisible, false), With(&A::ShowOuterArcRadius, false)},
        {{With(&A::ShowInnerArcRadius, true), more}, {With(&A::ShowOuterArcRadius, true), more}});
    Check("ctlMeterAngle",
        {With(&A::TickLabelColorValue, pink), With(&A::TickValuesVisible, false), With(&A::ShowOuterArcRadius, true)},
        {{With(&A::ShowInnerArcRadius, true), inwards}});
    Check("ctlMeterAngle", {With(&A::SectionColor1, pink), With(&A::PointerSize, 0)},
        {{With(&A::ArcStartDegrees, 180), up}, {With(&A::ArcRangeDegrees, 180), less}, {With(&A::OffsetX, 9), right},
        {With(&A::OffsetY, 9), down}, {With(&A::ArcRadius, 48), outwards}});
    Check("ctlMeterAngle", {With(&A::PointerColor, pink), With(&A::Position, 50)},
        {{With(&A::PointerStyleCode, pointer_styles::arrow), inwards},
        {With(&A::PointerStyleCode, pointer_styles::triangle), outwards}, {With(&A::PointerMargin, 12), inwards},
        {Both(With(&A::CurrentMax, 3), With(&A::CurrentMin, 3)), same},
        {Both(With(&A::PanelFaceStyle, 2), With(&A::TickMargin, 4)), same},
        {Both(With(&A::TickMajorLength, 9), With(&A::TickMinorLength, 9)), same},
        {With(&A::TickMinorAlignment, tick_alignments::inside), same}});
}

TEST_F(Settings, OfABandOrANumberShow)
{
    using L = LinearGauge;
    using N = AnalogDisplay;
    const std::vector<Change> number = {With(&N::FontColor, pink), With(&N::DisplayValue, 11), With(&N::Alignment, number_alignments::center)};
    CheckScale("ctlMeterLinear");
    Check("ctlMeterLinear", {With(&L::PointerColor, pink), With(&L::Position, 50)}, {{With(&L::PointerOffset, 8), up},
        {With(&L::ShowTicksAxis, true), same}});
    Check("ctlMeterLinear", {With(&L::TickLabelColorValue, pink)},
        {{With(&L::TickLocation, tick_locations::topLeft), up}});
    Check("ctlMeterLinear", {With(&L::SectionColor1, pink)}, {{With(&L::EndsMargin, 40), less}});
    Check("ctlMeterText", number, {{With(&N::DisplayValue, 1'111), more}, {With(&N::DisplayPrecision, 4), more},
        {With(&N::Alignment, number_alignments::left), left}, {With(&N::Alignment, number_alignments::right), right},
        {With(&N::FontColor, grey), less}, {With(&N::BackGroundColor, pink), more},
        {With(&N::BorderStyle, bevels::raised), raised}, {With(&N::BorderStyle, bevels::none), lighter},
        {With(&N::ErrorActive, true), other}, {With(&N::ErrorText, "none at all"), same}});
    CheckFont("ctlMeterText", &N::Font, number);
}
// clang-format on

} // namespace
