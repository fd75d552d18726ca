#pragma once
// A panel docked beside the canvas: a title with a close button, and what the band holds below it.

#include <QWidget>

namespace quor {

class Band;
class Theme;

class DockPanel final : public QWidget {
public:
    static constexpr int titleHeight = 28; // pixels

    // Band and theme outlive it; the content becomes its child. Its close button hides the band.
    DockPanel(Band& band, const Theme& theme, QWidget& content, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Band& m_band;
    const Theme& m_theme;
    QWidget& m_content;
    QWidget* m_closeButton;
};

} // namespace quor
