#include "qt/window/status_line.h"

#include "forms/bars.h"
#include "qt/ports/qt_text.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QPainter>

namespace quor {

namespace {

constexpr int lineHeight = 24; // pixels, with the rule above
constexpr int margin = 12;

QString TextOf(const Band& band)
{
    QStringList captions;
    for (const BandTool& place : band.Tools()) {
        if (place.Tool().Visible() && !place.Tool().IsSeparator()) {
            captions.append(ToQt(place.Caption()));
        }
    }
    return captions.join(QStringLiteral("     "));
}

} // namespace

StatusLine::StatusLine(Band& band, const Theme& theme, QWidget* parent) : QWidget(parent), m_band(band), m_theme(theme)
{
    setObjectName(ToQt(band.Name));
    setFixedHeight(lineHeight);
    m_following.push_back(band.Changed.Subscribe([this] { Follow(); }));
    for (const BandTool& place : band.Tools()) {
        m_following.push_back(place.Tool().Changed.Subscribe([this] { Follow(); }));
    }
    Follow();
}

void StatusLine::Follow()
{
    setVisible(m_band.Visible());
    setAccessibleName(TextOf(m_band));
    update();
}

void StatusLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const ThemeColors& colors = m_theme.Colors();
    painter.fillRect(rect(), colors.window);
    DrawRule(painter, rect(), Qt::Horizontal, colors.rule);
    painter.setPen(colors.labelText);
    painter.setFont(m_theme.TextFont());
    painter.drawText(rect().adjusted(margin, 1, -margin, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     TextOf(m_band));
}

} // namespace quor
