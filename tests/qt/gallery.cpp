// Draws the instruments in their variants and states into a picture, to be looked at.

#include "qt/painters/painters.h"
#include "qt/ports/qt_pictures.h"
#include "widgets/canvas.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using namespace quor;

constexpr Color green{0x00509E2E};
constexpr Color amber{0x0000A8F2};
constexpr Color white{0x00FFFFFF};

class Gallery {
public:
    explicit Gallery(QPainter& painter) : m_painter(painter) {}

    void Row(qreal height)
    {
        m_left = 8;
        m_top += m_height;
        m_height = height + 10;
    }

    template <class W>
    void Show(
        const char* array, qreal width, qreal height, const std::function<void(W&)>& change = [](W&) {})
    {
        W widget;
        change(widget);
        PainterFor(array)(m_painter, widget, QRectF(m_left, m_top + 8, width, height));
        m_left += width + 10;
    }

private:
    QPainter& m_painter;
    qreal m_left = 8;
    qreal m_top = 0;
    qreal m_height = 0;
};

void ShowRoundLeds(Gallery& gallery, qreal size)
{
    gallery.Row(size);
    for (const auto bevel : {bevels::none, bevels::raised, bevels::lowered}) {
        for (const Color color : {Color{0x00FF00}, green, amber, colors::buttonFace}) {
            for (const bool isActive : {true, false}) {
                gallery.Show<RoundLed>("ctlLEDRound", size, size, [&](RoundLed& led) {
                    led.Set(&RoundLed::ActiveColor, color);
                    led.Set(&RoundLed::InactiveColor, color);
                    led.Set(&RoundLed::AutoInactiveColor, color != colors::buttonFace);
                    led.Set(&RoundLed::BevelStyle, bevel);
                    led.Set(&RoundLed::Active, isActive);
                });
            }
        }
    }
}

void ShowRectLeds(Gallery& gallery)
{
    for (const auto bevel : {bevels::none, bevels::raised, bevels::lowered}) {
        gallery.Row(25);
        for (const Color color : {Color{0x00FF00}, green, amber, colors::buttonFace}) {
            for (const bool isActive : {true, false}) {
                gallery.Show<RectLed>("ctlLEDRect", 105, 25, [&](RectLed& led) {
                    led.Set(&RectLed::ActiveColor, color);
                    led.Set(&RectLed::InactiveColor, color);
                    led.Set(&RectLed::AutoInactiveColor, color != colors::buttonFace);
                    led.Set(&RectLed::BevelStyle, bevel);
                    led.Set(&RectLed::Active, isActive);
                    led.Set(&RectLed::Caption, isActive ? "Pump on" : "Pump off");
                    led.Set(&RectLed::CaptionOnColor, color == amber ? white : Color{0});
                    led.Set(&RectLed::CaptionAlignment, bevel);
                });
            }
        }
    }
    gallery.Row(50);
    gallery.Show<RectLed>("ctlLEDRect", 105, 50, [](RectLed& led) {
        led.Set(&RectLed::Active, true);
        led.Set(&RectLed::Caption, "A caption that is wrapped");
        led.Set(&RectLed::CaptionWordWrap, true);
    });
    gallery.Show<RectLed>("ctlLEDRect", 300, 50, [](RectLed& led) { led.Set(&RectLed::Active, true); });
    gallery.Show<RectLed>("ctlLEDRect", 10, 10);
    gallery.Show<RectLed>("ctlLEDRect", 10, 50, [](RectLed& led) { led.Set(&RectLed::Active, true); });
}

void ShowLabels(Gallery& gallery)
{
    gallery.Row(19);
    for (const std::int16_t border : std::initializer_list<std::int16_t>{0, 1}) {
        for (const std::int16_t appearance : std::initializer_list<std::int16_t>{0, 1}) {
            for (const std::int16_t alignment :
                 {label_alignments::left, label_alignments::center, label_alignments::right}) {
                gallery.Show<TextLabel>("ctlLabel", 75, border == 0 ? 13 : 19, [&](TextLabel& label) {
                    label.Set(&TextLabel::Caption, "Label");
                    label.Set(&TextLabel::BorderStyle, border);
                    label.Set(&TextLabel::Appearance, appearance);
                    label.Set(&TextLabel::Alignment, alignment);
                    label.Set(&TextLabel::BackStyle, static_cast<std::int16_t>(border == 0 ? appearance : 0));
                });
            }
        }
    }
    gallery.Row(60);
    for (const bool isEnabled : {true, false}) {
        gallery.Show<TextLabel>("ctlLabel", 105, 60, [&](TextLabel& label) {
            label.Set(&TextLabel::Caption, "A label that wraps between its words\r\nand has a second paragraph");
            label.Set(&TextLabel::WordWrap, true);
            label.Set(&Widget::Enabled, isEnabled);
        });
    }
    for (const char* face : {"MS Sans Serif", "Times New Roman", "Courier New", "Arial Narrow", "No Such Face"}) {
        gallery.Show<TextLabel>("ctlLabel", 150, 36, [&](TextLabel& label) {
            Font font;
            font.Name = face;
            font.Size = 160'000;
            font.SetBold(true);
            label.Set(&TextLabel::Caption, "North Ridge");
            label.Set(&TextLabel::Font, font);
            label.Set(&TextLabel::BorderStyle, std::int16_t{1});
            label.Set(&TextLabel::Appearance, std::int16_t{1});
        });
    }
}

void ShowPanels(Gallery& gallery, const PictureRef& picture)
{
    for (std::int32_t place = 0; place <= face_places::bottomOfCaption; ++place) {
        if (place % 7 == 0) {
            gallery.Row(105);
        }
        gallery.Show<Panel>("ctlBlnPic", 105, 105, [&](Panel& panel) {
            panel.Set(&Panel::Picture, picture);
            panel.Set(&Panel::Caption, place % 2 == 0 ? "Closed" : "Closed\nnow");
            panel.Set(&Panel::BevelStyle, place % 3);
            panel.Set(&Panel::CaptionAlignment, place <= face_places::centerBottom ? 8 - place : place - 9);
            panel.Set(&Panel::ImageAlignment, place);
        });
    }
    gallery.Row(105);
    for (std::int32_t mode = 0; mode < 4; ++mode) {
        gallery.Show<Panel>("ctlPicture", 105, 105, [&](Panel& panel) {
            panel.Set(&Panel::PanelPicture, picture);
            panel.Set(&Panel::PictureFillModeCode, mode % 3);
            panel.Set(&Panel::BevelStyle, mode % 2 + 1);
            panel.Set(&Panel::BackColor, Color{0x00493320});
            panel.Set(&Panel::PictureUseMaskFlag, mode == 3);
            panel.Set(&Panel::PictureMaskColorValue, Color{0x00ECE8E4});
        });
    }
    gallery.Show<Panel>("ctlPicture", 10, 10, [&](Panel& panel) { panel.Set(&Panel::PanelPicture, picture); });
}

void ShowButtons(Gallery& gallery, const PictureRef& picture)
{
    gallery.Row(25);
    for (const bool isEnabled : {true, false}) {
        for (const std::int32_t place : {7, 1, 5, 0}) {
            gallery.Show<PushButton>("ctlCommand", 105, 25, [&](PushButton& button) {
                button.Set(&PushButton::Caption, "Command");
                button.Set(&PushButton::CaptionAlignment, place);
                button.Set(&Widget::Enabled, isEnabled);
            });
        }
    }
    gallery.Row(70);
    for (const bool isEnabled : {true, false}) {
        for (const std::int32_t place : {9, 10, 11, 12}) {
            gallery.Show<PushButton>("ctlCommand", 105, 70, [&](PushButton& button) {
                button.Set(&PushButton::Caption, "Clear all alarms");
                button.Set(&PushButton::CaptionWordWrap, 1);
                button.Set(&PushButton::Picture, picture);
                button.Set(&PushButton::ImageAlignment, place);
                button.Set(&Widget::Enabled, isEnabled);
            });
        }
    }
    for (const QSize& size : {QSize(105, 33), QSize(130, 60)}) {
        gallery.Row(size.height());
        for (const std::int32_t side : {0, 1, 2, 3}) {
            for (const bool isActive : {true, false}) {
                gallery.Show<SwitchLed>("ctlCmdLED", size.width(), size.height(), [&](SwitchLed& button) {
                    button.Set(&SwitchLed::Caption, "On");
                    button.Set(&SwitchLed::Active, isActive);
                    button.Set(&SwitchLed::LEDAlignment, side);
                    button.Set(&Widget::Enabled, side != 3);
                    if (side == 2 && !isActive) {
                        button.Set(&SwitchLed::LEDColor, colors::buttonFace);
                    }
                });
            }
        }
    }
    gallery.Row(30);
    for (const QSize& size : {QSize(160, 30), QSize(10, 10), QSize(16, 30), QSize(60, 14)}) {
        gallery.Show<SwitchLed>("ctlCmdLED", size.width(), size.height(), [](SwitchLed& button) {
            button.Set(&SwitchLed::Active, true);
            button.Set(&SwitchLed::Caption, "Wide and flat");
            button.Set(&SwitchLed::LEDAlignment, lamp_sides::left);
        });
    }
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc < 3) {
        std::fputs("usage: gallery OUT.png PICTURE [SCALE]\n", stderr);
        return 2;
    }
    const qreal scale = argc > 3 ? std::atof(argv[3]) : 1;
    QImage image((QSizeF(950, 1000) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(QColor(0xF4F6F8));
    QPainter painter(&image);
    QtPictures pictures;
    const PictureRef picture = pictures.LoadPicture(argv[2]);
    Gallery gallery(painter);
    ShowRoundLeds(gallery, 17);
    ShowRoundLeds(gallery, 24);
    ShowRectLeds(gallery);
    ShowLabels(gallery);
    ShowPanels(gallery, picture);
    ShowButtons(gallery, picture);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
