#include "qt/window/panel_edge.h"

#include <QEvent>
#include <QMouseEvent>

#include <algorithm>

namespace quor {

namespace {

// Pixels.
constexpr int thickness = 5;
constexpr int leastRest = 200;

int PlaceOf(const QMouseEvent& event)
{
    return qRound(event.globalPosition().x());
}

} // namespace

PanelEdge::PanelEdge(QWidget& panel, QWidget& dock, QWidget& rest)
    : QWidget(&panel), m_dock(dock), m_rest(rest), m_least(dock.minimumWidth())
{
    setObjectName(dock.objectName() + QStringLiteral(".edge"));
    setCursor(Qt::SizeHorCursor);
    panel.installEventFilter(this);
}

bool PanelEdge::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        setGeometry(0, 0, thickness, parentWidget()->height());
        raise();
    }
    return QWidget::eventFilter(watched, event);
}

void PanelEdge::mousePressEvent(QMouseEvent* event)
{
    m_grip = m_dock.width() + PlaceOf(*event);
}

void PanelEdge::mouseMoveEvent(QMouseEvent* event)
{
    const int most = std::max(m_least, m_dock.width() + m_rest.width() - leastRest);
    m_dock.setFixedWidth(std::clamp(m_grip - PlaceOf(*event), m_least, most));
}

void PanelEdge::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    m_dock.setFixedWidth(m_least);
}

} // namespace quor
