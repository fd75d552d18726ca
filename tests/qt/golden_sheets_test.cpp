// How all instruments and the marks of the canvas look, against pictures of them that were looked at and kept: no text
// is on them, since machines have other fonts. QUOR_KEEP_SHEETS=1 keeps them anew.

#include "tests/qt/picture_of.h"

#include "document/kinds.h"
#include "qt/canvas/canvas_painting.h"
#include "qt/canvas/marks.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/linear_gauge.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QDir>
#include <QRegion>
#include <QTemporaryDir>

namespace {

constexpr QSize sheetSize(430, 284);
constexpr Color blue{0x00D06030};

// Instruments in rows, from left to right.
class Sheet {
public:
    Sheet()
    {
        AddWidgetArrays(canvas);
        AddLamps();
        AddFaces();
        AddBands();
        AddDials();
        AddMarks();
    }

    Canvas canvas;
    const Widget* moved = nullptr;

private:
    Widget& Add(const char* array, const QSize& size, const std::vector<Write>& changes = {})
    {
        Widget& widget = canvas.FindArray(array)->Load(++m_count);
        for (const Write& change : changes) {
            change(widget);
        }
        const auto twips = [](int pixels) { return static_cast<float>(pixels) * twipsPerPixelX; };
        widget.Move(twips(m_next.x()), twips(m_next.y()), twips(size.width()), twips(size.height()));
        widget.Set(&Widget::Visible, true);
        m_next.rx() += size.width() + 5;
        return widget;
    }

    void AddLamps()
    {
        const Write lit = With(&RoundLed::Active, true);
        for (const std::int32_t bevel : {bevels::none, bevels::raised, bevels::lowered}) {
            for (const int size : bevel == bevels::lowered ? std::vector{13, 31, 41} : std::vector{18}) {
                Add("ctlLEDRound", {size, size}, {With(&RoundLed::BevelStyle, bevel), lit});
            }
            Add("ctlLEDRound", {22, 20}, {With(&RoundLed::BevelStyle, bevel), With(&RoundLed::Transparent, false)});
        }
        m_next = {270, 5};
        Add("ctlLEDRound", {32, 32}, {lit, With(&RoundLed::ShowReflection, false)});
        Add("ctlLEDRound", {32, 32}, {lit, With(&RoundLed::ActiveColor, colors::buttonFace)});
        Add("ctlLEDRound", {32, 32}, {With(&RoundLed::AutoInactiveColor, false), With(&RoundLed::InactiveColor, blue)});
        m_next = {5, 48};
        for (const bool isLit : {true, false}) {
            for (const std::int32_t bevel : {bevels::none, bevels::raised, bevels::lowered}) {
                Add("ctlLEDRect", {41, 21}, {With(&RectLed::BevelStyle, bevel), With(&RectLed::Active, isLit)});
            }
        }
        Add("ctlLEDRect", {41, 21}, {With(&RectLed::Active, true), With(&RectLed::ActiveColor, colors::buttonFace)});
        m_next = {5, 73};
        const Write noText = With(&SwitchLed::Caption, "");
        for (std::int32_t side = lamp_sides::bottom; side <= lamp_sides::right; ++side) {
            Add("ctlCmdLED", {47, 33},
                {noText, With(&SwitchLed::LEDAlignment, side), With(&SwitchLed::Active, side % 2 == 0)});
        }
        Add("ctlCmdLED", {47, 33}, {noText, With(&SwitchLed::LEDColor, colors::buttonFace)});
        Add("ctlCmdLED", {47, 33}, {noText, With(&Widget::Enabled, false), With(&SwitchLed::Active, true)});
    }

    void AddFaces()
    {
        const QTemporaryDir directory;
        QImage image(20, 16, QImage::Format_RGB32);
        image.fill(0xFFFF00FF);
        image.setPixelColor(3, 3, Qt::blue);
        image.save(directory.filePath("picture.png"));
        const PictureRef picture = m_pictures.LoadPicture(directory.filePath("picture.png").toStdString());
        const Write bare = With(&PushButton::Caption, "");
        const Write isMasked = With(&Panel::PictureUseMaskFlag, true);
        const Write mask = With(&Panel::PictureMaskColorValue, Color{0x00FF00FF});
        Add("ctlCommand", {31, 33}, {bare, With(&PushButton::Picture, picture)});
        Add("ctlCommand", {31, 33}, {bare, With(&PushButton::Picture, picture), With(&Widget::Enabled, false)});
        m_next = {5, 110};
        for (const std::int32_t mode : {fill_modes::centered, fill_modes::stretched, fill_modes::tiled}) {
            Add("ctlPicture", {37, 33},
                {With(&Panel::PanelPicture, picture), With(&Panel::PictureFillModeCode, mode),
                 With(&Panel::BevelStyle, mode)});
        }
        for (const std::int32_t place : {face_places::leftTop, face_places::rightMiddle, face_places::centerBottom}) {
            Add("ctlBlnPic", {37, 33},
                {isMasked, mask, With(&Panel::Picture, picture), With(&Panel::ImageAlignment, place),
                 With(&Panel::BackColor, blue)});
        }
        for (const std::int32_t bevel : {bevels::none, bevels::raised, bevels::lowered}) {
            Add("ctlMeterText", {25, 19},
                {With(&AnalogDisplay::BorderStyle, bevel), With(&AnalogDisplay::ErrorActive, true),
                 With(&AnalogDisplay::ErrorText, "")});
        }
        const Write noText = With(&TextLabel::Caption, "");
        Add("ctlLabel", {13, 19}, {noText, With(&TextLabel::BackStyle, 0)}); // a ghost
        Add("ctlLabel", {13, 19}, {noText, With(&TextLabel::BackStyle, 1), With(&TextLabel::BackColor, blue)});
        for (const std::int16_t appearance : {std::int16_t{0}, std::int16_t{1}}) {
            Add("ctlStatusLabel", {13, 19},
                {noText, With(&TextLabel::BorderStyle, 1), With(&TextLabel::Appearance, appearance)});
        }
    }

    // Without numbers, its pointer at so many hundredths of the scale.
    static Write Plain(double percent)
    {
        return [percent](Widget& widget) {
            auto& gauge = static_cast<ScaleGauge&>(widget);
            gauge.Set(&ScaleGauge::TickValuesVisible, false);
            gauge.Set(&ScaleGauge::PositionMax, 100);
            gauge.Set(&ScaleGauge::SectionEnd1, 20);
            gauge.Set(&ScaleGauge::SectionEnd2, 40);
            gauge.Set(&ScaleGauge::SectionEnd3, 60);
            gauge.Set(&ScaleGauge::SectionEnd4, 80);
            gauge.Set(&ScaleGauge::Position, percent);
        };
    }

    void AddBands()
    {
        m_next = {5, 149};
        const Write standing = With(&LinearGauge::Orientation, orientations::vertical);
        for (const double percent : {-5.0, 0.0, 46.0}) {
            const std::int32_t bevel = percent < 0 ? bevels::raised : bevels::none;
            Add("ctlMeterLinear", {27, 130}, {standing, Plain(percent), With(&ScaleGauge::BorderStyle, bevel)});
        }
        Add("ctlMeterLinear", {27, 130},
            {standing, Plain(20), With(&ScaleGauge::Transparent, true), With(&ScaleGauge::SectionBandWidth, 0),
             With(&ScaleGauge::PointerColor, Color{0x00FFFFFF})});
        Add("ctlMeterLinear", {91, 31},
            {Plain(90), With(&LinearGauge::TickLocation, tick_locations::topLeft),
             With(&ScaleGauge::ReverseScaleFlag, true), With(&ScaleGauge::BorderStyle, bevels::lowered)});
    }

    void AddDials()
    {
        for (std::int32_t style = 0; style < 4; ++style) {
            m_next = style == 0 ? QPoint(138, 186) : QPoint(130 + style * 74, 149);
            Add("ctlMeterAngle", {69, 69},
                {Plain(40 * style - 20), With(&AngularGauge::ShowHub, style > 0),
                 With(&AngularGauge::PointerStyleCode, style),
                 With(&ScaleGauge::PointerSize, static_cast<std::int16_t>(4 * style + 3)),
                 With(&ScaleGauge::PointerColor, style % 2 == 0 ? colors::buttonText : Color{0x00FFFFFF}),
                 With(&ScaleGauge::BorderStyle, style % 3), With(&AngularGauge::ShowOuterArcRadius, style != 1),
                 With(&AngularGauge::ShowInnerArcRadius, style > 1),
                 With(&AngularGauge::HubSize, static_cast<std::int16_t>(7 * style)),
                 With(&AngularGauge::ArcRadius, 30)});
        }
        m_next = {215, 223};
        Add("ctlMeterAngle", {110, 56},
            {Plain(70), With(&ScaleGauge::SectionColor3, colors::buttonFace), With(&ScaleGauge::Transparent, true),
             With(&ScaleGauge::SectionBandWidth, 12), With(&AngularGauge::ArcStartDegrees, 180),
             With(&AngularGauge::ArcRangeDegrees, 180), With(&AngularGauge::OffsetY, 20),
             With(&AngularGauge::ArcRadius, 60)});
    }

    // Handles and frame around a lamp, one that is moved, and the grid.
    void AddMarks()
    {
        m_next = {340, 242};
        Widget& lamp = Add("ctlLEDRound", {25, 21});
        for (std::size_t each = 0; each < Canvas::handleCount; ++each) {
            const std::size_t place = each < 4 ? each : each + 1; // of nine
            const auto at = [](float low, float length, std::size_t third) {
                return low + (third == 0   ? -Canvas::handleSize
                              : third == 1 ? (length - Canvas::handleSize) / 2
                                           : length);
            };
            canvas.SetHandle(
                each, {at(lamp.Left(), lamp.Width(), place % 3), at(lamp.Top(), lamp.Height(), place / 3), true});
        }
        m_next.rx() += 15;
        moved = &Add("ctlCommand", {30, 30}, {With(&PushButton::Caption, "")});
        canvas.SetGrid({150, 150, 430 * 15, 45 * 15, true});
    }

    QtPictures m_pictures;
    QPoint m_next{5, 5};
    std::int32_t m_count = 0;
};

// In fewer colours, so that the file is small.
QImage Coarser(QImage image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, image.pixel(x, y) & 0xFFF8F8F8);
        }
    }
    return image;
}

QImage Drawn(const Sheet& sheet, qreal scale)
{
    QImage image((QSizeF(sheetSize) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    CanvasPainter(sheet.canvas).Paint(painter, sheetSize, QRect(QPoint(0, 0), sheetSize), {.faded = sheet.moved});
    DrawOutline(painter, QRectF(404, 235, 21, 17), true);
    DrawOutline(painter, QRectF(403, 256, 21, 17), false);
    painter.end();
    image.setDevicePixelRatio(1);
    return Coarser(image);
}

void ExpectAsKept(const QImage& image, const QString& name)
{
    const QString kept = QStringLiteral(QUOR_TEST_DATA "/sheets/") + name + ".png";
    if (qEnvironmentVariableIsSet("QUOR_KEEP_SHEETS")) {
        image.save(kept, nullptr, 0); // as small as it gets
    }
    const QImage expected(kept);
    constexpr int unseen = 12; // of 255: what the eye doesn't see, and another compiler rounds
    if (expected.size() == image.size() && OtherPixels(image, expected, unseen) <= 8) {
        return;
    }
    const QString path = QDir::current().filePath(name + ".png");
    image.save(path);
    ADD_FAILURE() << kept.toStdString() << " isn't what is drawn now: " << path.toStdString();
}

TEST(GoldenSheets, InstrumentsAndMarksLookAsTheyDid)
{
    const Sheet sheet;
    ExpectAsKept(Drawn(sheet, 1), QStringLiteral("instruments_1"));
    ExpectAsKept(Drawn(sheet, 1.5), QStringLiteral("instruments_1.5"));
    ExpectAsKept(Drawn(sheet, 2), QStringLiteral("instruments_2"));
}

} // namespace
