#include "qt/forms/row_list_widget.h"

#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace quor {

namespace {

constexpr int rowHeight = 28; // pixels
constexpr int iconSize = 20;
constexpr int padding = 8;

class RowDelegate final : public QStyledItemDelegate {
public:
    RowDelegate(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), m_theme(theme) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
        return {text + iconSize + 3 * padding, rowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const ThemeColors& colors = m_theme.Colors();
        const QRect row = option.rect.adjusted(2, 1, -2, -1);
        const bool isChosen = (option.state & QStyle::State_Selected) != 0;
        if (isChosen || (option.state & QStyle::State_MouseOver) != 0) {
            DrawBox(*painter, row, radii::button, isChosen ? colors.selectedGround : colors.hover);
        }
        const QRect icon(row.left() + padding - 2, row.center().y() - iconSize / 2 + 1, iconSize, iconSize);
        index.data(Qt::DecorationRole).value<QIcon>().paint(painter, icon);
        painter->setFont(m_theme.TextFont());
        painter->setPen(isChosen ? colors.selectedText : colors.text);
        painter->drawText(row.adjusted(iconSize + 2 * padding - 2, 0, -padding, 0),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, index.data().toString());
    }

private:
    const Theme& m_theme;
};

} // namespace

RowListWidget::RowListWidget(const Theme& theme, QWidget& parent) : QListWidget(&parent), m_theme(theme)
{
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(1, 3, 1, 3);
    setItemDelegate(new RowDelegate(theme, this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
}

void RowListWidget::AddRow(const QString& text, std::string_view icon)
{
    addItem(new QListWidgetItem(icon.empty() ? QIcon() : m_theme.Icon(icon), text));
}

bool RowListWidget::event(QEvent* event)
{
    if (event->type() != QEvent::Paint) {
        return QListWidget::event(event);
    }
    QPainter painter(this); // the ground below the rows
    DrawBox(painter, rect(), radii::control, m_theme.Colors().field, m_theme.Colors().edge);
    return true;
}

void RowListWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        onOpen();
        return;
    }
    QListWidget::keyPressEvent(event);
}

void RowListWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (indexAt(event->position().toPoint()).isValid()) {
        onOpen();
    }
}

} // namespace quor
