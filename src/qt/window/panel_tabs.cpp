#include "qt/window/panel_tabs.h"

#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QAbstractButton>
#include <QPainter>

namespace quor {

namespace {

// Pixels.
constexpr int tabHeight = 26;
constexpr int rowPitch = 28;
constexpr int gap = 2;
constexpr int padding = 8; // at each side of a caption
constexpr int margin = 8;
constexpr int topGap = 2;
constexpr int bottomGap = 6; // with the rule

class PanelTab final : public QAbstractButton {
public:
    PanelTab(const Theme& theme, QWidget* parent) : QAbstractButton(parent), m_theme(theme)
    {
        setCheckable(true);
        setAutoExclusive(true);
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override
    {
        return {QFontMetrics(m_theme.TextFont()).horizontalAdvance(text()) + 2 * padding, tabHeight};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const ThemeColors& colors = m_theme.Colors();
        if (isChecked()) {
            DrawBox(painter, rect(), radii::button, colors.selectedGround);
            painter.fillRect(Snapped(painter, QRectF(padding, height() - 5, width() - 2 * padding, 2)), colors.accent);
        } else if (underMouse()) {
            DrawBox(painter, rect(), radii::button, colors.hover);
        }
        painter.setFont(m_theme.TextFont());
        painter.setPen(isChecked() ? colors.selectedText : colors.labelText);
        painter.drawText(rect().adjusted(0, 0, 0, -2), Qt::AlignCenter | Qt::TextSingleLine, text());
    }

private:
    const Theme& m_theme;
};

} // namespace

PanelTabs::PanelTabs(const Theme& theme, std::function<void(int)> onChoice, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_onChoice(std::move(onChoice))
{
}

void PanelTabs::Show(const QStringList& captions, int current)
{
    while (m_tabs.size() < static_cast<std::size_t>(captions.size())) {
        auto* tab = new PanelTab(m_theme, this);
        const int position = static_cast<int>(m_tabs.size());
        connect(tab, &QAbstractButton::clicked, this, [this, position] { m_onChoice(position); });
        m_tabs.push_back(tab);
    }
    for (std::size_t i = 0; i < m_tabs.size(); ++i) {
        const auto position = static_cast<qsizetype>(i);
        m_tabs[i]->setVisible(position < captions.size());
        m_tabs[i]->setText(captions.value(position));
        m_tabs[i]->setChecked(position == current);
    }
    Flow();
}

void PanelTabs::resizeEvent(QResizeEvent* /*event*/)
{
    Flow();
}

void PanelTabs::Flow()
{
    int x = margin;
    int y = topGap;
    for (QAbstractButton* tab : m_tabs) {
        if (tab->isHidden()) {
            continue;
        }
        const int tabWidth = tab->sizeHint().width();
        if (x > margin && x + tabWidth > width() - margin) {
            x = margin;
            y += rowPitch;
        }
        tab->setGeometry(x, y, tabWidth, tabHeight);
        x += tabWidth + gap;
    }
    setFixedHeight(y + rowPitch + bottomGap);
}

void PanelTabs::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawRule(painter, QRectF(0, height() - 1, width(), 1), Qt::Horizontal, m_theme.Colors().rule);
}

} // namespace quor
