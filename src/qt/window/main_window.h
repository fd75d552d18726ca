#pragma once
// The main form's window: menus, bars, docked panels and the canvas, as the bars' model says.

#include "base/event.h"
#include "qt/window/bar_actions.h"

#include <QMainWindow>

#include <vector>

class QBoxLayout;

namespace quor {

class Band;
class CanvasView;
class Theme;
class frmMain;

class MainWindow final : public QMainWindow {
public:
    // The main form, which is loaded, and the theme outlive the window.
    MainWindow(frmMain& main, const Theme& theme);

    CanvasView& Canvas() const noexcept { return *m_canvas; }

protected:
    // The model decides whether the window closes.
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenuBar(const Band& band);
    void AddToolBar(Band& band);
    void AddCenter();
    void AddPanel(QBoxLayout& columns, Band& band, QWidget& content, int width, Qt::Edge edge);

    frmMain& m_main;
    const Theme& m_theme;
    BarActions m_actions;
    CanvasView* m_canvas = nullptr;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
