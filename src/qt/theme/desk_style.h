#pragma once
// Draws the controls of the program's surroundings: flat, quiet, in the theme's colours.

#include <QProxyStyle>

#include <memory>

class QFocusFrame;

namespace quor {

struct ThemeColors;

class DeskStyle final : public QProxyStyle {
public:
    // What draws whatever this style leaves alone. The caller owns it.
    static QStyle* MakeBase();

    // The colours are those of the moment, whenever it draws.
    explicit DeskStyle(std::shared_ptr<const ThemeColors> colors);
    ~DeskStyle() override;

    const ThemeColors& Colors() const noexcept { return m_colors; }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;

private:
    // Each draws one kind of control.
    void DrawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const;
    void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const;
    void DrawMenuIcon(const QStyleOptionMenuItem& item, QPainter& painter) const;
    void DrawMenuText(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const;
    int TextFlags(const QStyleOption& option, const QWidget* widget) const; // of a menu's captions
    void DrawPushButton(const QStyleOptionButton& button, QPainter& painter) const;
    void DrawPushButtonText(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) const;
    void DrawToolButton(const QStyleOption& option, QPainter& painter) const;
    void DrawTab(const QStyleOptionTab& tab, QPainter& painter) const;
    void DrawIndicator(const QStyleOption& option, QPainter& painter, bool isRadioButton) const;
    void DrawField(const QStyleOption& option, QPainter& painter) const;
    void DrawComboBox(const QStyleOptionComboBox& box, QPainter& painter) const;
    void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) const;
    void DrawProgressBar(const QStyleOptionProgressBar& bar, QPainter& painter) const;
    void DrawFocusRing(const QRect& area, QPainter& painter) const;
    QRect ScrollBarPart(const QStyleOptionSlider& bar, SubControl part) const;
    void FollowFocus(QWidget* focused);

    std::shared_ptr<const ThemeColors> m_shared;
    const ThemeColors& m_colors;
    std::unique_ptr<QFocusFrame> m_ring; // around the control that has the focus
};

} // namespace quor
