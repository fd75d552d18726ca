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

    // Gives the application palette, font and style, and follows the desktop when it changes. Once, before any window;
    // the theme outlives all of them.
    void Apply(QApplication& application);

private:
    class Follower;

    void AdoptDesktop();
    void Spread() const;

    // Shared with the style, which belongs to the application and may outlive the theme.
    std::shared_ptr<ThemeColors> m_shared = std::make_shared<ThemeColors>(LightColors());
    ThemeColors& m_colors = *m_shared;
    QFont m_font;
    std::unique_ptr<Follower> m_follower;
};

// Those of the theme that was given to the application. Fails before that.
const ThemeColors& ColorsInUse();

// The icon of a tool, such as "miOpen", drawn in the theme's colours when it is first shown. An unknown name gives a
// null icon.
QIcon IconOf(std::string_view name);

// The desktop's font in the sizes in use beside the application's own, which is that of panels, status and buttons.
QFont MenuFont();    // menus and messages
QFont TitleFont();   // frames and docks
QFont HeadingFont(); // a dialog's head

} // namespace quor
