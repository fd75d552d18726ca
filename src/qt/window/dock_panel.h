#pragma once
// A panel docked beside the canvas: a title with a close button, and what the band holds below it.

#include "base/event.h"

#include <QWidget>

namespace quor {

class Band;
class Theme;

class DockPanel final : public QWidget {
public:
    static constexpr int titleHeight = 28; // pixels

    // Shows itself as the band is visible. Band and theme outlive it; the content becomes its child.
    DockPanel(Band& band, const Theme& theme, QWidget& content, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    Band& m_band;
    const Theme& m_theme;
    QWidget& m_content;
    QWidget* m_closeButton;
    Subscription m_following;
};

} // namespace quor
