// Menu bars and menus.

#include "qt/theme/desk_style.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme_colors.h"

#include <QMenu>
#include <QStyleOption>

#include <algorithm>

namespace quor {

namespace {

constexpr int rowHeight = 28;
constexpr int separatorHeight = 9;
constexpr int iconSize = 20;
constexpr int iconLeft = 6; // within the row, which stands 4 px inside the menu
constexpr int textLeft = 38;
constexpr int rightMargin = 12;
constexpr int shortcutGap = 28;
constexpr int arrowRoom = 24;

QString CaptionOf(const QStyleOptionMenuItem& item)
{
    return item.text.section(QLatin1Char('\t'), 0, 0);
}

QString ShortcutOf(const QStyleOptionMenuItem& item)
{
    return item.text.section(QLatin1Char('\t'), 1);
}

QSize MenuItemSize(const QStyleOptionMenuItem& item)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        return {separatorHeight, separatorHeight};
    }
    const QFontMetrics metrics(item.font);
    int width = textLeft + metrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, CaptionOf(item)).width();
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        width += arrowRoom;
    }
    const int shortcut = std::max(item.reservedShortcutWidth, metrics.horizontalAdvance(ShortcutOf(item)));
    width += shortcut > 0 ? shortcutGap + shortcut : 0;
    return {std::max(width + rightMargin, 150), rowHeight};
}

} // namespace

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    switch (type) {
    case CT_MenuBarItem:
        return {contents.width() + 16, 24};
    case CT_MenuBar:
        return {contents.width(), 28};
    case CT_MenuItem:
        return MenuItemSize(*qstyleoption_cast<const QStyleOptionMenuItem*>(option));
    case CT_PushButton:
        return {std::max(contents.width() + 28, 72), 28};
    case CT_ToolButton:
        return {28, 28};
    case CT_LineEdit:
    case CT_ComboBox:
        return {contents.width() + 32, 24};
    case CT_ItemViewItem: {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return {usual.width(), std::max(usual.height(), 24)};
    }
    default:
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
}

int DeskStyle::TextFlags(const QStyleOption& option, const QWidget* widget) const
{
    const bool underlines = styleHint(SH_UnderlineShortcut, &option, widget, nullptr) != 0;
    return Qt::TextSingleLine | Qt::TextShowMnemonic | (underlines ? 0 : Qt::TextHideMnemonic);
}

void DeskStyle::DrawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const
{
    painter.fillRect(item.rect, m_colors.window);
    const bool isOpen = (item.state & State_Sunken) != 0;
    if (isOpen || (item.state & State_Selected) != 0) {
        DrawBox(painter, item.rect, radii::button, isOpen ? m_colors.pressed : m_colors.hover);
    }
    const bool isEnabled = (item.state & State_Enabled) != 0;
    painter.setPen(isEnabled ? m_colors.text : m_colors.disabledText);
    painter.drawText(item.rect, Qt::AlignCenter | TextFlags(item, widget), item.text);
}

void DeskStyle::DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const QRectF rule(item.rect.left() + 6, item.rect.center().y(), item.rect.width() - 12, 1);
        DrawRule(painter, rule, Qt::Horizontal, m_colors.rule);
        return;
    }
    const bool isEnabled = (item.state & State_Enabled) != 0;
    if (isEnabled && (item.state & State_Selected) != 0) {
        DrawBox(painter, item.rect, radii::button, m_colors.selectedGround);
    }
    DrawMenuIcon(item, painter);
    DrawMenuText(item, painter, widget);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QPointF middle(item.rect.right() - 10, item.rect.center().y() + 0.5);
        DrawChevron(painter, middle, Chevron::Right, isEnabled ? m_colors.icon : m_colors.disabledText);
    }
}

void DeskStyle::DrawMenuIcon(const QStyleOptionMenuItem& item, QPainter& painter) const
{
    const QRect icon(item.rect.left() + iconLeft, item.rect.top() + (rowHeight - iconSize) / 2, iconSize, iconSize);
    if (item.checkType != QStyleOptionMenuItem::NotCheckable && item.checked) {
        DrawBox(painter, icon.adjusted(-2, -2, 2, 2), radii::button, m_colors.selectedGround,
                WithAlpha(m_colors.accent, 0.55));
    }
    if (!item.icon.isNull()) {
        const bool isEnabled = (item.state & State_Enabled) != 0;
        item.icon.paint(&painter, icon, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
    }
}

void DeskStyle::DrawMenuText(const QStyleOptionMenuItem& item, QPainter& painter, const QWidget* widget) const
{
    const bool isEnabled = (item.state & State_Enabled) != 0;
    const QRect area = item.rect.adjusted(textLeft, 0, -rightMargin, 0);
    painter.setFont(item.font);
    painter.setPen(isEnabled ? m_colors.text : m_colors.disabledText);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | TextFlags(item, widget), CaptionOf(item));
    painter.setPen(isEnabled ? m_colors.labelText : m_colors.disabledText);
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, ShortcutOf(item));
}

} // namespace quor
