#include "qt/window/toolbox_view.h"

#include "editor/main_form.h"
#include "editor/tools.h"
#include "qt/painters/painters.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

namespace quor {

namespace {

constexpr int face = 26; // pixels; a cell's last row and column stay empty
constexpr int iconSide = 20;

// The pointer with the picture of what it drags.
QCursor DragPicture(const QIcon& icon, qreal scale)
{
    constexpr int side = 40;
    constexpr int away = 14;
    QPixmap pixmap(QSize(side, side) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    icon.paint(&painter, QRect(away, away, iconSide, iconSide));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF({{1, 1}, {1, 15}, {4.5, 11.5}, {7, 17}, {9.5, 16}, {7, 10.5}, {12, 10.5}}));
    painter.end();
    return QCursor(pixmap, 1, 1);
}

} // namespace

// One button.
class ToolboxCell final : public QToolButton {
public:
    ToolboxCell(frmMain& main, CanvasView& canvas, std::size_t index, QWidget* parent)
        : QToolButton(parent), m_main(main), m_canvas(canvas), m_index(index)
    {
        const QString name = ToQt(main.Toolbox().cmdTool().at(index).kind->caption);
        setObjectName(QStringLiteral("cmdTool(%1)").arg(index));
        setAccessibleName(name);
        setToolTip(name);
        setAutoRaise(true);
        setFocusPolicy(Qt::NoFocus);
        setIcon(IconOf(kindNames[index].tool));
        setIconSize({iconSide, iconSide});
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton) {
            return;
        }
        m_main.Toolbox().cmdTool_MouseDown(m_index, MouseButton::Left);
        if (m_main.Mouse().IsDragging()) {
            setDown(true);
            setCursor(DragPicture(icon(), devicePixelRatioF()));
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (isDown()) {
            m_canvas.TrackDrag(event->globalPosition());
            if (!m_main.Mouse().IsDragging()) {
                unsetCursor(); // the drag was given up
            }
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !isDown()) {
            return;
        }
        setDown(false);
        unsetCursor();
        m_canvas.EndDrag(event->globalPosition());
    }

private:
    frmMain& m_main;
    CanvasView& m_canvas;
    std::size_t m_index;
};

ToolboxView::ToolboxView(frmMain& main, CanvasView& canvas, QWidget* parent) : QWidget(parent), m_main(main)
{
    setObjectName(QStringLiteral("frmViewToolbox"));
    for (std::size_t index = 0; index < kindCount; ++index) {
        m_cells.push_back(new ToolboxCell(main, canvas, index, this));
    }
}

void ToolboxView::resizeEvent(QResizeEvent* /*event*/)
{
    frmViewToolbox& toolbox = m_main.Toolbox();
    toolbox.Form_Resize(static_cast<float>(width() - 2 * margin) * twipsPerPixelX);
    for (std::size_t index = 0; index < m_cells.size(); ++index) {
        const QPoint at = PixelsOf(toolbox.cmdTool().at(index).place).topLeft().toPoint();
        m_cells[index]->setGeometry(QRect(at + QPoint(margin, topGap), QSize(face, face)));
    }
}

} // namespace quor
