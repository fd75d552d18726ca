#include "qt/window/dock_panel.h"

#include "forms/bars.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QAbstractButton>
#include <QPainter>

namespace quor {

namespace {

class CloseButton final : public QAbstractButton {
public:
    CloseButton(const Theme& theme, QWidget* parent) : QAbstractButton(parent), m_theme(theme)
    {
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const ThemeColors& colors = m_theme.Colors();
        if (isDown() || underMouse()) {
            DrawBox(painter, rect(), radii::button, isDown() ? colors.pressed : colors.hover);
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(colors.icon, 1.25, Qt::SolidLine, Qt::RoundCap));
        const QPointF middle = QRectF(rect()).center();
        painter.drawLine(middle + QPointF(-4.5, -4.5), middle + QPointF(4.5, 4.5));
        painter.drawLine(middle + QPointF(4.5, -4.5), middle + QPointF(-4.5, 4.5));
    }

private:
    const Theme& m_theme;
};

} // namespace

DockPanel::DockPanel(Band& band, const Theme& theme, QWidget& content, QWidget* parent)
    : QWidget(parent), m_band(band), m_theme(theme), m_content(content), m_closeButton(new CloseButton(theme, this))
{
    setObjectName(ToQt(band.Name));
    content.setParent(this);
    m_closeButton->setObjectName(QStringLiteral("close"));
    m_closeButton->setAccessibleName(QStringLiteral("Close %1").arg(ToQt(band.Caption)));
    QObject::connect(static_cast<QAbstractButton*>(m_closeButton), &QAbstractButton::clicked, this,
                     [this] { m_band.Set(&Band::Visible, false); });
}

void DockPanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ThemeColors& colors = m_theme.Colors();
    painter.fillRect(rect(), colors.panel);
    const QRect area(12, 0, m_closeButton->x() - 12, titleHeight);
    const QString title = ToQt(m_band.Caption);
    const QFont font = m_theme.TitleFont();
    const bool fits = QFontMetrics(font).horizontalAdvance(title) <= area.width();
    painter.setFont(fits ? font : m_theme.TextFont());
    painter.setPen(colors.text);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
}

void DockPanel::resizeEvent(QResizeEvent* /*event*/)
{
    m_closeButton->setGeometry(width() - 20, 4, 20, 20);
    m_content.setGeometry(0, titleHeight, width(), height() - titleHeight);
}

} // namespace quor
