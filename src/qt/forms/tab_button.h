#pragma once
// A tab: a caption on the ground that says whether it is in front.

#include <QAbstractButton>

namespace quor {

class Theme;

class TabButton final : public QAbstractButton {
public:
    static constexpr int tabHeight = 26; // pixels

    TabButton(const Theme& theme, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& m_theme;
};

} // namespace quor
