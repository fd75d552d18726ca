#pragma once
// The toolbox on the screen: its buttons in their flow, each dragged onto the canvas.

#include <QWidget>

#include <vector>

namespace quor {

class CanvasView;
class ToolboxCell;
class frmMain;

class ToolboxView final : public QWidget {
public:
    static constexpr int margin = 12; // pixels, left and right
    static constexpr int topGap = 2;

    // All outlive it. The drag goes on over the canvas.
    ToolboxView(frmMain& main, CanvasView& canvas, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    frmMain& m_main;
    std::vector<ToolboxCell*> m_cells;
};

} // namespace quor
