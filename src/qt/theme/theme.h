#pragma once
// The looks of the program's surroundings: colours after the desktop's, the desktop's font, the icons.

#include "qt/theme/theme_colors.h"

#include <QFont>
#include <QIcon>

#include <memory>
#include <string_view>

class QApplication;

namespace quor {

class Theme {
public:
    Theme();
    ~Theme();
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    const ThemeColors& Colors() const noexcept { return m_colors; }

    // Gives the application palette, font and style, and follows the desktop when it changes. Once, before any window;
    // the theme outlives all of them.
    void Apply(QApplication& application);

    // Fixed colours instead of the desktop's.
    void UseColors(const ThemeColors& colors);

    // The icon of a tool, such as "miOpen", drawn in the theme's colour when it is first shown. An unknown name gives
    // a null icon.
    QIcon Icon(std::string_view name) const;

    // The desktop's font in the sizes in use.
    QFont TextFont() const;    // panels, status, buttons
    QFont MenuFont() const;    // menus and messages
    QFont TitleFont() const;   // frames and docks
    QFont HeadingFont() const; // a dialog's head

private:
    class Follower;

    void AdoptDesktop();
    void Spread() const;
    QFont FontOf(int pixels, QFont::Weight weight) const;

    // Shared with the style, which belongs to the application and may outlive the theme.
    std::shared_ptr<ThemeColors> m_shared = std::make_shared<ThemeColors>(LightColors());
    ThemeColors& m_colors = *m_shared;
    QFont m_font;
    QApplication* m_application = nullptr;
    std::unique_ptr<Follower> m_follower;
};

} // namespace quor
