#include "qt/theme/theme_colors.h"

namespace quor {

namespace {

QColor Hex(QRgb rgb)
{
    return QColor(rgb);
}

} // namespace

ThemeColors LightColors()
{
    return {
        .window = Hex(0xF0F2F4),
        .panel = Hex(0xF7F8FA),
        .field = Hex(0xFFFFFF),
        .readOnlyField = Hex(0xEEF0F3),
        .rule = Hex(0xDBE0E5),
        .edge = Hex(0x848E9B),
        .text = Hex(0x1B222A),
        .labelText = Hex(0x56616D),
        .disabledText = Hex(0x858F9B),
        .accent = Hex(0x1F63D0),
        .onAccent = Hex(0xFFFFFF),
        .selectedGround = Hex(0xDCE8FB),
        .selectedText = Hex(0x174EA6),
        .hover = Hex(0xE3E7EC),
        .pressed = Hex(0xD3D9E0),
        .icon = Hex(0x3A4550),
        .menu = Hex(0xFFFFFF),
        .button = Hex(0xFFFFFF),
        .thumb = Hex(0x858F9B),
        .error = Hex(0xC62828),
    };
}

ThemeColors DarkColors()
{
    return {
        .window = Hex(0x1E2227),
        .panel = Hex(0x23282E),
        .field = Hex(0x191D21),
        .readOnlyField = Hex(0x2A3037),
        .rule = Hex(0x373E46),
        .edge = Hex(0x727D89),
        .text = Hex(0xE4E8EC),
        .labelText = Hex(0xA6B0BB),
        .disabledText = Hex(0x6B7580),
        .accent = Hex(0x6CA6FF),
        .onAccent = Hex(0x0D1726),
        .selectedGround = Hex(0x243C60),
        .selectedText = Hex(0xA9CBFF),
        .hover = Hex(0x2E353C),
        .pressed = Hex(0x3A434C),
        .icon = Hex(0xC3CBD4),
        .menu = Hex(0x272C33),
        .button = Hex(0x2D333A),
        .thumb = Hex(0x6B7580),
        .error = Hex(0xE5575B),
    };
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
    palette.setColor(QPalette::ToolTipBase, Hex(0x1B222A));
    palette.setColor(QPalette::ToolTipText, Hex(0xFFFFFF));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, colors.disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, colors.readOnlyField);
    palette.setColor(QPalette::Disabled, QPalette::Button, colors.readOnlyField);
    return palette;
}

QColor Mixed(const QColor& color, const QColor& other, double share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return QColor(mix(color.red(), other.red()), mix(color.green(), other.green()), mix(color.blue(), other.blue()));
}

} // namespace quor
