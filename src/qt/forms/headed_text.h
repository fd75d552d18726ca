#pragma once
// Lines of text of which the first is a heading.

#include <QWidget>

namespace quor {

class Theme;

class HeadedText final : public QWidget {
public:
    HeadedText(const Theme& theme, QWidget* parent) : QWidget(parent), m_theme(theme) {}

    void SetText(const QString& text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& m_theme;
    QStringList m_lines;
};

} // namespace quor
