#include "qt/window/panel_edge.h"

#include "forms/bars.h"

#include <QEvent>
#include <QMouseEvent>
#include <QScreen>

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

PanelEdge::PanelEdge(Band& band, QWidget& panel, QWidget& dock, QWidget& rest)
    : QWidget(&panel), m_band(band), m_dock(dock), m_rest(rest), m_least(dock.minimumWidth()),
      m_bandChanges(band.Changed.Subscribe([this] { FollowBand(); }))
{
    setObjectName(dock.objectName() + QStringLiteral(".edge"));
    setCursor(Qt::SizeHorCursor);
    panel.installEventFilter(this);
    FollowBand();
}

// A layout from a wider screen leaves room for the rest, too.
void PanelEdge::FollowBand()
{
    const int most = std::max(m_least, screen()->availableSize().width() - leastRest);
    m_dock.setFixedWidth(std::clamp(m_band.Extent(), m_least, most));
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
    m_band.SetExtent(std::clamp(m_grip - PlaceOf(*event), m_least, std::min(most, Band::mostExtent)));
}

void PanelEdge::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    m_band.SetExtent(0);
}

} // namespace quor
