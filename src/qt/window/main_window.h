#pragma once
// The main form's window: menus, bars, docked panels and the canvas, as the bars' model says.

#include "base/event.h"
#include "qt/window/bar_actions.h"

#include <QMainWindow>

#include <vector>

class QSplitter;

namespace quor {

class Band;
class CanvasView;
class frmMain;

class MainWindow final : public QMainWindow {
public:
    // The main form, which is loaded, outlives the window.
    explicit MainWindow(frmMain& main);

    CanvasView& Canvas() const noexcept { return *m_canvas; }

protected:
    // The model decides whether the window closes.
    void closeEvent(QCloseEvent* event) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddMenuBar(const Band& band);
    void AddToolBar(Band& band);
    void AddCenter();
    QWidget* MakePanel(Band& band, QWidget& content, int width);
    void MakeEdge(Band& properties);
    QWidget* MakeStatusLine(Band& band);

    frmMain& m_main;
    BarActions m_actions;
    CanvasView* m_canvas = nullptr;
    QSplitter* m_columns = nullptr; // the canvas between its panels
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
