#include "qt/theme/theme_colors.h"

#include "qt/drawing/mixing.h"

namespace quor {

namespace {

struct ColorRow {
    QColor ThemeColors::*color;
    QRgb light;
    QRgb dark;
};

constexpr ColorRow colorRows[] = {
    {&ThemeColors::window, 0xF0F2F4, 0x1E2227},       {&ThemeColors::panel, 0xF7F8FA, 0x23282E},
    {&ThemeColors::field, 0xFFFFFF, 0x191D21},        {&ThemeColors::readOnlyField, 0xEEF0F3, 0x2A3037},
    {&ThemeColors::rule, 0xDBE0E5, 0x373E46},         {&ThemeColors::edge, 0x848E9B, 0x727D89},
    {&ThemeColors::text, 0x1B222A, 0xE4E8EC},         {&ThemeColors::labelText, 0x56616D, 0xA6B0BB},
    {&ThemeColors::disabledText, 0x858F9B, 0x6B7580}, {&ThemeColors::accent, 0x1F63D0, 0x6CA6FF},
    {&ThemeColors::onAccent, 0xFFFFFF, 0x0D1726},     {&ThemeColors::selectedGround, 0xDCE8FB, 0x243C60},
    {&ThemeColors::selectedText, 0x174EA6, 0xA9CBFF}, {&ThemeColors::hover, 0xE3E7EC, 0x2E353C},
    {&ThemeColors::pressed, 0xD3D9E0, 0x3A434C},      {&ThemeColors::icon, 0x3A4550, 0xC3CBD4},
    {&ThemeColors::menu, 0xFFFFFF, 0x272C33},         {&ThemeColors::button, 0xFFFFFF, 0x2D333A},
    {&ThemeColors::thumb, 0x858F9B, 0x6B7580},        {&ThemeColors::error, 0xC62828, 0xE5575B},
};

ThemeColors ColorsOf(QRgb ColorRow::*scheme)
{
    ThemeColors colors;
    for (const ColorRow& row : colorRows) {
        colors.*row.color = QColor(row.*scheme);
    }
    return colors;
}

} // namespace

ThemeColors LightColors()
{
    return ColorsOf(&ColorRow::light);
}

ThemeColors DarkColors()
{
    return ColorsOf(&ColorRow::dark);
}

bool IsOwnPalette(const QPalette& desktop, const QPalette& fallback)
{
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Text, QPalette::Highlight}) {
        if (desktop.color(role) != fallback.color(role)) {
            return true;
        }
    }
    return false;
}

ThemeColors ColorsFrom(const QPalette& desktop)
{
    const QColor window = desktop.color(QPalette::Window);
    const QColor text = desktop.color(QPalette::WindowText);
    const QColor base = desktop.color(QPalette::Base);
    const QColor accent = desktop.color(QPalette::Highlight);
    ThemeColors colors = window.lightness() < text.lightness() ? DarkColors() : LightColors();
    colors.window = window;
    colors.panel = Mixed(window, base, 0.4);
    colors.field = base;
    colors.readOnlyField = Mixed(base, window, 0.7);
    colors.rule = Mixed(window, text, 0.14);
    colors.edge = Mixed(window, text, 0.5);
    colors.text = text;
    colors.labelText = Mixed(text, window, 0.28);
    colors.disabledText = desktop.color(QPalette::Disabled, QPalette::WindowText);
    colors.accent = accent;
    colors.onAccent = desktop.color(QPalette::HighlightedText);
    colors.selectedGround = Mixed(base, accent, 0.2);
    colors.selectedText = Mixed(accent, text, 0.35);
    colors.hover = Mixed(window, text, 0.07);
    colors.pressed = Mixed(window, text, 0.14);
    colors.icon = Mixed(text, window, 0.14);
    colors.menu = base;
    colors.button = desktop.color(QPalette::Button);
    colors.thumb = Mixed(window, text, 0.45);
    return colors;
}

QPalette PaletteOf(const ThemeColors& colors)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colors.window);
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Base, colors.field);
    palette.setColor(QPalette::AlternateBase, colors.readOnlyField);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.labelText);
    palette.setColor(QPalette::Button, colors.button);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::BrightText, colors.onAccent);
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::HighlightedText, colors.onAccent);
    palette.setColor(QPalette::Link, colors.accent);
    palette.setColor(QPalette::LinkVisited, colors.selectedText);
    palette.setColor(QPalette::Light, colors.panel);
    palette.setColor(QPalette::Midlight, colors.hover);
    palette.setColor(QPalette::Mid, colors.rule);
    palette.setColor(QPalette::Dark, colors.edge);
    palette.setColor(QPalette::Shadow, colors.edge);
    palette.setColor(QPalette::ToolTipBase, QColor(0x1B222A));
    palette.setColor(QPalette::ToolTipText, QColor(0xFFFFFF));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, colors.disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, colors.readOnlyField);
    palette.setColor(QPalette::Disabled, QPalette::Button, colors.readOnlyField);
    return palette;
}

} // namespace quor
