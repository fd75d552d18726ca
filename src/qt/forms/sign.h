#pragma once
// The widget that shows an icon of the theme at the widget's size; "error" is the sign of a failure.

#include <QWidget>

#include <string>

namespace quor {

class Theme;

class Sign final : public QWidget {
public:
    Sign(const Theme& theme, QWidget& parent) : QWidget(&parent), m_theme(theme) {}

    void SetIcon(const std::string& name);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& m_theme;
    std::string m_name;
};

} // namespace quor
