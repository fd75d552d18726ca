// The lamps with corners, labels, panels and buttons are measured in pictures of them.

#include "qt/painters/painters.h"
#include "qt/ports/qt_pictures.h"
#include "tests/qt/test.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"

#include <QImage>
#include <QTemporaryDir>

namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb face = 0xFFD5D9DE;
constexpr Color green{0x0000C800};

// On white, with a margin that stays white.
QImage Drawn(std::string_view array, const Widget& widget, const QSize& size, qreal scale = 1, int margin = 0)
{
    QImage image((QSizeF(size) * scale).toSize() + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(white);
    QPainter painter(&image);
    PainterFor(array)(painter, widget, QRectF(QPointF(margin, margin) / scale, QSizeF(size)));
    return image;
}

QRgb Middle(const QImage& image)
{
    return image.pixel(image.width() / 2, image.height() / 2);
}

using IsInk = bool (*)(QRgb);
bool IsDark(QRgb pixel)
{
    return qGray(pixel) < 110;
}
bool IsRed(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
}

QRect BoxOf(const QImage& image, IsInk isInk)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(image.pixel(x, y))) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

QRgb Laid(QRgb ground, int over, double share)
{
    const auto mix = [&](int from) { return qRound(from + (over - from) * share); };
    return qRgb(mix(qRed(ground)), mix(qGreen(ground)), mix(qBlue(ground)));
}

void ExpectNear(QRgb pixel, QRgb expected, const char* what)
{
    EXPECT_NEAR(qRed(pixel), qRed(expected), 2) << what;
    EXPECT_NEAR(qGreen(pixel), qGreen(expected), 2) << what;
    EXPECT_NEAR(qBlue(pixel), qBlue(expected), 2) << what;
}

// A picture file of one colour, with a left half of another.
PictureRef RedPicture(const QSize& size, QRgb left = 0xFFFF0000)
{
    static const QTemporaryDir directory;
    QImage image(size, QImage::Format_RGB32);
    image.fill(0xFFFF0000);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width() / 2; ++x) {
            image.setPixel(x, y, left);
        }
    }
    const QString path = directory.filePath("picture.png");
    image.save(path);
    QtPictures pictures;
    return pictures.LoadPicture(path.toStdString());
}

RectLed Lamp(std::int32_t bevel, bool isActive, Color color = green)
{
    RectLed led;
    led.Set(&RectLed::ActiveColor, color);
    led.Set(&RectLed::InactiveColor, color);
    led.Set(&RectLed::AutoInactiveColor, color != colors::buttonFace);
    led.Set(&RectLed::BevelStyle, bevel);
    led.Set(&RectLed::Active, isActive);
    return led;
}

TEST(RectLedPicture, ShowsItsColorInTheMiddleAndIsFlatWhenMuted)
{
    for (const std::int32_t bevel : {bevels::none, bevels::raised, bevels::lowered}) {
        ExpectNear(Middle(Drawn("ctlLEDRect", Lamp(bevel, true), {200, 60})), 0xFF00C800, "lit");
        EXPECT_NEAR(qGreen(Middle(Drawn("ctlLEDRect", Lamp(bevel, false), {200, 60}))), 80, 12) << "unlit";
        for (const bool isActive : {true, false}) {
            const QImage muted = Drawn("ctlLEDRect", Lamp(bevel, isActive, colors::buttonFace), {60, 20});
            for (int y = 3; y < 17; ++y) {
                ASSERT_EQ(muted.pixel(30, y), face) << "row " << y;
            }
        }
    }
}

TEST(RectLedPicture, ItsLegendStandsWhereItIsAlignedAtEveryScale)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        for (const std::int32_t alignment : {lamp_alignments::center, lamp_alignments::left, lamp_alignments::right}) {
            RectLed led = Lamp(bevels::none, true, Color{0x00FFFFFF});
            led.Set(&RectLed::ShowReflection, false);
            led.Set(&RectLed::Caption, "HIH");
            led.Set(&RectLed::CaptionAlignment, alignment);
            const QImage image = Drawn("ctlLEDRect", led, {105, 25}, scale);
            const int inside = qCeil(2 * scale);
            const QRect room = image.rect().adjusted(inside, inside, -inside, -inside);
            const QRect ink = BoxOf(image.copy(room), IsDark).translated(room.topLeft());
            const qreal left = ink.left();
            const qreal right = image.width() - 1 - ink.right();
            const qreal inset = 6 * scale;
            const qreal blank = 1.5 * scale; // beside a letter
            if (alignment == lamp_alignments::center) {
                EXPECT_NEAR(left, right, 1.5) << scale;
            } else {
                EXPECT_NEAR(alignment == lamp_alignments::left ? left : right, inset, blank) << scale;
            }
            EXPECT_NEAR(ink.top() + ink.bottom(), image.height() - 1, 2) << "capitals in the middle at " << scale;
        }
    }
}

TEST(RectLedPicture, ALegendOfNearlyItsOwnBrightnessGetsAnOutline)
{
    const auto darkest = [](Color lamp) {
        RectLed led = Lamp(bevels::none, true, lamp);
        led.Set(&RectLed::Caption, "MMM");
        led.Set(&RectLed::CaptionOnColor, Color{0x00FFFFFF});
        const QImage image = Drawn("ctlLEDRect", led, {60, 25}).copy(10, 8, 40, 9);
        int least = 255;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                least = std::min(least, qGray(image.pixel(x, y)));
            }
        }
        return least;
    };
    EXPECT_LT(darkest(Color{0x0000A8F2}), qGray(qRgb(0xF2, 0xA8, 0)) * 0.75);
    EXPECT_GT(darkest(Color{0x00800000}), qGray(qRgb(0, 0, 0x80)) * 0.75) << "enough contrast needs none";
}

TextLabel LabelOf(const char* caption)
{
    TextLabel label;
    label.Set(&TextLabel::Caption, caption);
    label.Set(&TextLabel::BackColor, Color{0x00FFFFFF});
    return label;
}

TEST(TextLabelPicture, StandsAtItsSideAndInTheMiddleOfALowBox)
{
    const struct {
        std::int16_t alignment;
        std::int16_t border;
        std::int16_t appearance;
        int inset;
    } cases[] = {{label_alignments::left, 0, 0, 0},  {label_alignments::left, 1, 0, 3},
                 {label_alignments::left, 1, 1, 4},  {label_alignments::right, 1, 1, 4},
                 {label_alignments::right, 0, 1, 0}, {label_alignments::center, 1, 0, 3}};
    for (const auto& each : cases) {
        TextLabel label = LabelOf("HIH");
        label.Set(&TextLabel::Alignment, each.alignment);
        label.Set(&TextLabel::BorderStyle, each.border);
        label.Set(&TextLabel::Appearance, each.appearance);
        const QImage image = Drawn("ctlLabel", label, {105, 19});
        const QRect room(2, 2, 101, 15);
        const QRect ink = BoxOf(image.copy(room), IsDark).translated(room.topLeft());
        const int right = 104 - ink.right();
        if (each.alignment == label_alignments::center) {
            EXPECT_NEAR(ink.left(), right, 1);
        } else {
            EXPECT_NEAR(each.alignment == label_alignments::left ? ink.left() : right, each.inset + 1, 1);
        }
        EXPECT_EQ(ink.bottom(), 12) << "the baseline of 11 pixels in a height of 19";
        EXPECT_EQ(ink.height(), 8);
    }
    const QImage high = Drawn("ctlLabel", LabelOf("HIH"), {105, 60});
    EXPECT_EQ(BoxOf(high, IsDark).bottom(), 9) << "in a high box it starts at the top";
}

TEST(TextLabelPicture, WrapsBetweenWordsAndAtItsBreaks)
{
    TextLabel label = LabelOf("HHHH HHHH\r\nHHHH");
    const auto lines = [&] { return (BoxOf(Drawn("ctlLabel", label, {60, 80}), IsDark).bottom() - 9) / 13 + 1; };
    EXPECT_EQ(lines(), 2);
    label.Set(&TextLabel::WordWrap, true);
    EXPECT_EQ(lines(), 3);
}

TEST(PanelPicture, CaptionAndPictureKeepSixPixelsFromTheEdgeAndFourFromEachOther)
{
    const PictureRef picture = RedPicture({20, 16});
    for (std::int32_t place = 0; place <= face_places::centerBottom; ++place) {
        Panel panel;
        panel.Set(&Panel::BackColor, Color{0x00FFFFFF});
        panel.Set(&Panel::BevelStyle, panel_bevels::none);
        panel.Set(&Panel::Caption, "HIH");
        panel.Set(&Panel::CaptionAlignment, place);
        const QRect ink = BoxOf(Drawn("ctlBlnPic", panel, {105, 105}), IsDark);
        const qreal across[] = {6 + ink.width() / 2.0, 99 - ink.width() / 2.0, 52.5};
        const qreal down[] = {10, 52.5, 95};
        EXPECT_NEAR(ink.center().x() + 0.5, across[place / 3], 1.5) << place;
        EXPECT_NEAR(ink.center().y() + 0.5, down[place % 3], 1) << place;

        panel.Set(&Panel::Caption, "");
        panel.Set(&Panel::Picture, picture);
        panel.Set(&Panel::ImageAlignment, place);
        const int lefts[] = {6, 79, 43};
        const int tops[] = {6, 45, 83};
        EXPECT_EQ(BoxOf(Drawn("ctlBlnPic", panel, {105, 105}), IsRed), QRect(lefts[place / 3], tops[place % 3], 20, 16))
            << place;
    }
    Panel panel;
    panel.Set(&Panel::Caption, "HIH");
    panel.Set(&Panel::Picture, picture);
    panel.Set(&Panel::ImageAlignment, face_places::topOfCaption);
    const QImage image = Drawn("ctlBlnPic", panel, {105, 105});
    const QRect box = BoxOf(image, IsRed);
    const QRect below(0, box.bottom() + 1, 100, 30);
    EXPECT_EQ(BoxOf(image.copy(below), IsDark).top(), 4) << "between the picture and the capitals";
}

TEST(PanelPicture, ThePictureFillsItsPanelAsItIsTold)
{
    Panel panel;
    panel.Set(&Panel::PanelPicture, RedPicture({20, 16}, 0xFF00FF00));
    panel.Set(&Panel::BackColor, Color{0x00400000});
    panel.Set(&Panel::BevelStyle, panel_bevels::lowered);
    const auto shown = [&](std::int32_t mode, bool isMasked) {
        panel.Set(&Panel::PictureFillModeCode, mode);
        panel.Set(&Panel::PictureUseMaskFlag, isMasked);
        panel.Set(&Panel::PictureMaskColorValue, Color{0x0000FF00});
        return Drawn("ctlPicture", panel, {104, 84});
    };
    constexpr QRgb ground = 0xFF000040;
    EXPECT_EQ(BoxOf(shown(fill_modes::centered, false), IsRed), QRect(52, 34, 10, 16));
    EXPECT_EQ(shown(fill_modes::centered, false).pixel(45, 40), 0xFF00FF00);
    EXPECT_EQ(shown(fill_modes::centered, true).pixel(45, 40), ground) << "the mask shows the ground";
    EXPECT_EQ(shown(fill_modes::stretched, false).pixel(20, 10), 0xFF00FF00);
    EXPECT_TRUE(IsRed(shown(fill_modes::stretched, true).pixel(100, 80)));
    EXPECT_EQ(shown(fill_modes::stretched, true).pixel(20, 10), ground);
    const QImage tiled = shown(fill_modes::tiled, true);
    for (int x = 2; x < 102; ++x) {
        EXPECT_EQ(IsRed(tiled.pixel(x, 70)), (x - 2) % 20 >= 10) << x;
    }
    EXPECT_EQ(tiled.pixel(1, 40), Laid(ground, 0, 0.12)) << "the bevel stays clear";
}

// Whatever the size and the scale.
TEST(Painters, KeepToTheirArea)
{
    const PictureRef picture = RedPicture({200, 160});
    RectLed led = Lamp(bevels::lowered, true);
    led.Set(&RectLed::Caption, "A legend that is too long for most of these");
    TextLabel label = LabelOf("A text that is too long for most of these");
    label.Set(&TextLabel::Alignment, label_alignments::center);
    Panel panel;
    panel.Set(&Panel::Picture, picture);
    panel.Set(&Panel::PanelPicture, picture);
    panel.Set(&Panel::Caption, "A caption\nof two lines");
    PushButton button;
    button.Set(&PushButton::Picture, picture);
    button.Set(&PushButton::Caption, "A caption");
    SwitchLed switchLed;
    switchLed.Set(&SwitchLed::Caption, "A caption that is too long for most of these");
    const struct {
        const char* array;
        const Widget& widget;
    } cases[] = {{"ctlLEDRect", led},
                 {"ctlLabel", label},
                 {"ctlBlnPic", panel},
                 {"ctlCommand", button},
                 {"ctlCmdLED", switchLed}};
    for (const auto& each : cases) {
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            for (const QSize& size : {QSize(1, 1), QSize(2, 40), QSize(10, 10), QSize(60, 14), QSize(300, 200)}) {
                constexpr int margin = 6;
                const QImage image = Drawn(each.array, each.widget, size, scale, margin);
                const QRect box = BoxOf(image, [](QRgb pixel) { return pixel != white; });
                const QRect area = QRect(QPoint(margin, margin), image.size() - QSize(2 * margin, 2 * margin));
                EXPECT_TRUE((box | area) == area)
                    << each.array << ' ' << size.width() << " x " << size.height() << " at " << scale;
            }
        }
    }
}

} // namespace
