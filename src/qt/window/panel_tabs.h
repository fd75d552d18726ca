#pragma once
// Tabs that flow like words over as many rows as they need: never clipped, scrolled or reordered.

#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

namespace quor {

class PanelTab;

class PanelTabs final : public QWidget {
public:
    // `onChoice` hears of the tab that the user chooses, by its position; what is in front is for Show to say.
    explicit PanelTabs(std::function<void(int)> onChoice, QWidget* parent = nullptr);

    // The tabs in order and the position of the one in front, -1 for none.
    void Show(const QStringList& captions, int current);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Choose(qsizetype position);
    void Flow();

    std::function<void(int)> m_onChoice;
    std::vector<PanelTab*> m_tabs; // as many as there ever were
    QStringList m_captions;
    int m_current = -1;
};

} // namespace quor
