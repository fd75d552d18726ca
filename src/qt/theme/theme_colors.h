#pragma once
// The colours of the program's surroundings by their role: bars, panels, fields, menus.

#include <QColor>
#include <QPalette>

namespace quor {

struct ThemeColors {
    QColor window; // ground of the main window and its bars
    QColor panel;  // ground of panels and dialogs
    QColor field;
    QColor readOnlyField; // and a disabled one
    QColor rule;
    QColor edge; // of controls
    QColor text;
    QColor labelText;
    QColor disabledText;
    QColor accent;
    QColor onAccent;
    QColor selectedGround;
    QColor selectedText;
    QColor hover;
    QColor pressed;
    QColor icon;
    QColor menu;
    QColor button;
    QColor thumb;
    QColor error;
};

ThemeColors LightColors();
ThemeColors DarkColors();

// True if the desktop has a palette of its own, not the one that the toolkit falls back on.
bool IsOwnPalette(const QPalette& desktop, const QPalette& fallback);

// The colours for a desktop with a palette of its own.
ThemeColors ColorsFrom(const QPalette& desktop);

QPalette PaletteOf(const ThemeColors& colors);

} // namespace quor
