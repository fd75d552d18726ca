#include "qt/forms/tab.h"

#include <QStyleOptionTab>

namespace quor {

Tab::Tab(QWidget* parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
}

QSize Tab::sizeHint() const
{
    constexpr int padding = 8; // pixels, at each side of the caption
    return {fontMetrics().horizontalAdvance(text()) + 2 * padding, tabHeight};
}

void Tab::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionTab option;
    option.initFrom(this);
    option.text = text();
    option.state.setFlag(QStyle::State_Selected, isChecked());
    option.state.setFlag(QStyle::State_Sunken, isDown());
    QPainter painter(this);
    style()->drawControl(QStyle::CE_TabBarTab, &option, &painter, this);
}

} // namespace quor
