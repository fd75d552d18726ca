#pragma once
// Tabs that flow like words: never clipped, scrolled or reordered.

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class QAbstractButton;

namespace quor {

class Theme;

class PanelTabs final : public QWidget {
public:
    // `onChoice` hears of the tab that the user chooses, by its position.
    PanelTabs(const Theme& theme, std::function<void(int)> onChoice, QWidget* parent = nullptr);

    // The tabs in order and the position of the one in front, -1 for none.
    void Show(const QStringList& captions, int current);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Flow();

    const Theme& m_theme;
    std::function<void(int)> m_onChoice;
    std::vector<QAbstractButton*> m_tabs;
};

} // namespace quor
