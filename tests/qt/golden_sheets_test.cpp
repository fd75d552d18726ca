// How all instruments, the marks of the canvas and the theme's controls look, against pictures of them that were looked
// at and kept: no text is on them, since machines have other fonts. QUOR_KEEP_SHEETS=1 keeps them anew.

#include "tests/qt/picture_of.h"

#include "qt/canvas/canvas_painting.h"
#include "qt/canvas/marks.h"
#include "qt/theme/desk_style.h"
#include "qt/theme/theme.h"
#include "tests/qt/test.h"

#include <QPixmapCache>

namespace {

constexpr QSize sheetSize(430, 284);
constexpr Color blue{0x00D06030};

// Instruments in rows, from left to right.
class Sheet : public Instruments {
public:
    Sheet()
    {
        AddLamps();
        AddFaces();
        AddBands();
        AddDials();
        AddMarks();
    }

    const Widget* moved = nullptr;

private:
    Widget& Add(const char* array, const QSize& size, const std::vector<Write>& changes = {})
    {
        Widget& widget = Instruments::Add(array, changes);
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
        const PictureRef picture = PinkPicture();
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

    QPoint m_next{5, 5};
};

// In fewer colours, so that the file is small.
QImage Coarser(QImage image)
{
    image.setDevicePixelRatio(1);
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
    return Coarser(image);
}

// The theme's controls in each of their states.
class ControlSheet {
public:
    static constexpr QSize size{240, 520};

    explicit ControlSheet(QPainter& painter) : m_painter(painter), m_style(*QApplication::style())
    {
        painter.fillRect(QRect(QPoint(0, 0), size), ColorsInUse().panel);
        AddButtonsAndFields();
        AddBars();
        AddMenusAndIcons();
    }

private:
    using S = QStyle;
    static constexpr S::State on = S::State_Enabled;
    static constexpr S::State hover = on | S::State_MouseOver;
    static constexpr S::State held = hover | S::State_Sunken;

    // One beside the other: as it is, under the pointer, held, and what else is told, on and off.
    template <class Option, class Draw> void Row(Option option, const QSize& each, S::State further, Draw draw)
    {
        int x = 4;
        for (const S::State state :
             {on, hover, held, on | further, hover | further, S::State(S::State_None), further}) {
            option.rect = QRect(QPoint(x, m_top), each);
            option.state = state;
            option.palette = QApplication::palette();
            draw(option);
            x += each.width() + 4;
        }
        m_top += each.height() + 4;
    }
    template <class Option>
    void Control(S::ControlElement element, const QSize& each, S::State further, Option option = {})
    {
        Row(option, each, further, [&](const Option& shown) { m_style.drawControl(element, &shown, &m_painter); });
    }
    template <class Option>
    void Primitive(S::PrimitiveElement element, const QSize& each, S::State further, Option option = {})
    {
        Row(option, each, further, [&](const Option& shown) { m_style.drawPrimitive(element, &shown, &m_painter); });
    }

    void AddButtonsAndFields()
    {
        QStyleOptionButton button;
        Control(S::CE_PushButtonBevel, {28, 22}, S::State_HasFocus, button);
        button.features = QStyleOptionButton::DefaultButton;
        Control(S::CE_PushButtonBevel, {28, 22}, S::State_HasFocus, button);
        Primitive<QStyleOptionButton>(S::PE_IndicatorCheckBox, {16, 16}, S::State_On);
        Primitive<QStyleOptionButton>(S::PE_IndicatorRadioButton, {16, 16}, S::State_On);
        Primitive<QStyleOption>(S::PE_PanelButtonTool, {28, 20}, S::State_On);
        Control<QStyleOptionTab>(S::CE_TabBarTab, {28, 22}, S::State_Selected);
        QStyleOptionFrame field;
        field.lineWidth = 1;
        Primitive(S::PE_PanelLineEdit, {28, 20}, S::State_ReadOnly, field);
        Row(QStyleOptionComboBox(), {28, 20}, S::State_HasFocus,
            [&](const QStyleOptionComboBox& box) { m_style.drawComplexControl(S::CC_ComboBox, &box, &m_painter); });
        Primitive<QStyleOptionViewItem>(S::PE_PanelItemViewItem, {28, 12}, S::State_Selected);
        Control<QStyleOption>(S::CE_FocusFrame, {28, 20}, S::State_HasFocus);
        Primitive<QStyleOption>(S::PE_FrameMenu, {28, 20}, S::State_None);
        Primitive<QStyleOption>(S::PE_IndicatorToolBarSeparator, {9, 24}, S::State_None);
    }

    void AddBars()
    {
        QStyleOptionSlider bar;
        bar.maximum = 100;
        bar.pageStep = 40;
        bar.activeSubControls = S::SC_ScrollBarSlider;
        for (const Qt::Orientation orientation : {Qt::Vertical, Qt::Horizontal}) {
            bar.orientation = orientation;
            const QSize each = orientation == Qt::Vertical ? QSize(12, 60) : QSize(60, 12);
            Row(bar, each, S::State_Horizontal, [&](QStyleOptionSlider shown) {
                shown.sliderPosition = shown.rect.left() % 101;
                m_style.drawComplexControl(S::CC_ScrollBar, &shown, &m_painter);
            });
        }
        QStyleOptionProgressBar progress;
        progress.maximum = 100;
        Row(progress, {28, 12}, S::State_None, [&](QStyleOptionProgressBar shown) {
            shown.progress = shown.rect.left() - 4;
            m_style.drawControl(S::CE_ProgressBar, &shown, &m_painter);
        });
    }

    void AddMenusAndIcons()
    {
        Control<QStyleOptionMenuItem>(S::CE_MenuBarItem, {28, 14}, S::State_Selected);
        QStyleOptionMenuItem item;
        item.checkType = QStyleOptionMenuItem::NonExclusive;
        for (const auto type :
             {QStyleOptionMenuItem::Normal, QStyleOptionMenuItem::SubMenu, QStyleOptionMenuItem::Separator}) {
            item.menuItemType = type;
            item.icon = IconOf(type == QStyleOptionMenuItem::Normal ? "miSave" : "");
            item.checked = !item.checked;
            Control(S::CE_MenuItem, {29, 28}, S::State_Selected, item);
        }
        int x = 4;
        for (const char* name : {"error", "question", "information", "miOpen", "miMtrAngle", "miSnapToGrid"}) {
            IconOf(name).paint(&m_painter, QRect(x, m_top, 18, 18));
            IconOf(name).paint(&m_painter, QRect(x + 19, m_top, 18, 18), Qt::AlignCenter, QIcon::Disabled);
            x += 38;
        }
    }

    QPainter& m_painter;
    S& m_style;
    int m_top = 4;
};

// In light colours and in dark ones.
QImage DrawnControls(qreal scale)
{
    constexpr QSize size = ControlSheet::size;
    QImage image((QSizeF(2 * size.width(), size.height()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    for (const ThemeColors& colors : {LightColors(), DarkColors()}) {
        QPixmapCache::clear();
        QApplication::setStyle(new DeskStyle(std::make_shared<const ThemeColors>(colors)));
        QApplication::setPalette(PaletteOf(colors));
        ControlSheet sheet(painter);
        painter.translate(size.width(), 0);
    }
    painter.end();
    Theme().Apply(*qApp);
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

TEST(GoldenSheets, InstrumentsMarksAndControlsLookAsTheyDid)
{
    const Sheet sheet;
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        ExpectAsKept(Drawn(sheet, scale), QStringLiteral("instruments_%1").arg(scale));
        ExpectAsKept(DrawnControls(scale), QStringLiteral("controls_%1").arg(scale));
    }
}

} // namespace
