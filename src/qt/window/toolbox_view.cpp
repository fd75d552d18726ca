#include "qt/window/toolbox_view.h"

#include "editor/main_form.h"
#include "editor/tools.h"
#include "qt/painters/painters.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"
#include "qt/window/canvas_view.h"

#include <QMouseEvent>
#include <QPainter>

namespace quor {

namespace {

constexpr int face = 26; // pixels; a cell's last row and column stay empty
constexpr int iconSize = 20;
constexpr int iconInset = 3;

// The pointer with the picture of what it drags.
QCursor DragPicture(const QIcon& icon, qreal scale)
{
    constexpr int side = 40;
    constexpr int away = 14;
    QPixmap pixmap(QSize(side, side) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    icon.paint(&painter, QRect(away, away, iconSize, iconSize));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF({{1, 1}, {1, 15}, {4.5, 11.5}, {7, 17}, {9.5, 16}, {7, 10.5}, {12, 10.5}}));
    painter.end();
    return QCursor(pixmap, 1, 1);
}

} // namespace

// One button.
class ToolboxCell final : public QWidget {
public:
    ToolboxCell(frmMain& main, CanvasView& canvas, const Theme& theme, std::size_t index, QWidget* parent)
        : QWidget(parent), m_main(main), m_canvas(canvas), m_theme(theme), m_index(index),
          m_icon(theme.Icon(kindNames[index].tool))
    {
        const ToolboxButton& button = main.Toolbox().cmdTool().at(index);
        const QString name = ToQt(button.kind->caption);
        setObjectName(QStringLiteral("cmdTool(%1)").arg(index));
        setAccessibleName(name);
        setToolTip(name);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const ThemeColors& colors = m_theme.Colors();
        if (m_isHeld || underMouse()) {
            DrawBox(painter, QRect(0, 0, face, face), radii::button, m_isHeld ? colors.pressed : colors.hover);
        }
        m_icon.paint(&painter, QRect(iconInset, iconInset, iconSize, iconSize));
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton) {
            return;
        }
        m_main.Toolbox().cmdTool_MouseDown(m_index, MouseButton::Left);
        if (m_main.Mouse().IsDragging()) {
            m_isHeld = true;
            setCursor(DragPicture(m_icon, devicePixelRatioF()));
            update();
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (m_isHeld) {
            m_canvas.TrackDrag(event->globalPosition());
            if (!m_main.Mouse().IsDragging()) {
                unsetCursor(); // the drag was given up
            }
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !m_isHeld) {
            return;
        }
        m_isHeld = false;
        unsetCursor();
        update();
        m_canvas.EndDrag(event->globalPosition());
    }

private:
    frmMain& m_main;
    CanvasView& m_canvas;
    const Theme& m_theme;
    std::size_t m_index;
    QIcon m_icon;
    bool m_isHeld = false;
};

ToolboxView::ToolboxView(frmMain& main, CanvasView& canvas, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_main(main)
{
    setObjectName(QStringLiteral("frmViewToolbox"));
    for (std::size_t index = 0; index < kindCount; ++index) {
        m_cells.push_back(new ToolboxCell(main, canvas, theme, index, this));
    }
}

void ToolboxView::resizeEvent(QResizeEvent* /*event*/)
{
    frmViewToolbox& toolbox = m_main.Toolbox();
    toolbox.Form_Resize(static_cast<float>(width() - 2 * margin) * twipsPerPixelX);
    for (std::size_t index = 0; index < m_cells.size(); ++index) {
        m_cells[index]->setGeometry(
            PixelsOf(toolbox.cmdTool().at(index).place).translated(margin, topGap).toAlignedRect());
    }
}

} // namespace quor
