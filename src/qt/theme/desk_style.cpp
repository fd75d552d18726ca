#include "qt/theme/desk_style.h"

#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFocusFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPainterPath>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>

namespace quor {

namespace {

// The option as what it is; wrong types can't come from the toolkit.
template <class Option> const Option& As(const QStyleOption* option)
{
    return *qstyleoption_cast<const Option*>(option);
}

// Pixels.
constexpr int scrollBarExtent = 12;
constexpr int itemMargin = 7; // beside an item's text, so that it stands below the list's own

// Menus mark the letters for the keyboard once it is in use.
bool UnderlinesLetters(const QWidget* widget)
{
    const bool isMenu =
        qobject_cast<const QMenuBar*>(widget) != nullptr || qobject_cast<const QMenu*>(widget) != nullptr;
    return !isMenu || qobject_cast<const QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

// Of a scroll area or one of its bars.
bool LiesOverContent(const QWidget* widget)
{
    const QWidget* parent = widget;
    while (parent != nullptr && qobject_cast<const QAbstractScrollArea*>(parent) == nullptr) {
        parent = parent->parentWidget();
    }
    return qobject_cast<const QScrollArea*>(parent) != nullptr;
}

// What a drop-down list opens.
bool IsListPopup(const QWidget* widget)
{
    return widget != nullptr && widget->inherits("QComboBoxPrivateContainer");
}

// How far the ring around a control reaches beyond it. A box has no edge that the ring may cover.
int RingDistance(const QWidget* control)
{
    const bool isBox =
        qobject_cast<const QCheckBox*>(control) != nullptr || qobject_cast<const QRadioButton*>(control) != nullptr;
    return isBox ? 3 : 1;
}

bool WantsRing(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr || qobject_cast<const QListWidget*>(widget) != nullptr ||
           (qobject_cast<const QLineEdit*>(widget) != nullptr && qobject_cast<const QLineEdit*>(widget)->hasFrame());
}

} // namespace

QStyle* DeskStyle::MakeBase()
{
    return QStyleFactory::create(QStringLiteral("Fusion"));
}

DeskStyle::DeskStyle(std::shared_ptr<const ThemeColors> colors)
    : QProxyStyle(MakeBase()), m_shared(std::move(colors)), m_colors(*m_shared)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FollowFocus(now); });
}

DeskStyle::~DeskStyle() = default;

void DeskStyle::FollowFocus(QWidget* focused)
{
    const bool isKeyboardUser = focused != nullptr && WantsRing(focused);
    if (!isKeyboardUser) {
        if (m_ring != nullptr) {
            m_ring->setWidget(nullptr);
        }
        return;
    }
    if (m_ring == nullptr) {
        m_ring = std::make_unique<QFocusFrame>();
        // The frame becomes its control's sibling; who deletes it first doesn't matter to the other.
        connect(m_ring.get(), &QObject::destroyed, this, [this] { (void)m_ring.release(); });
    }
    m_ring->setWidget(focused);
}

void DeskStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QDialog*>(widget) != nullptr && !widget->testAttribute(Qt::WA_SetPalette)) {
        widget->setBackgroundRole(QPalette::Light);
        widget->setAutoFillBackground(true);
    }
    if (qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr ||
        qobject_cast<QScrollBar*>(widget) != nullptr) {
        widget->setAttribute(Qt::WA_Hover);
    }
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case PE_PanelMenu:
        painter->fillRect(option->rect, m_colors.menu);
        return;
    case PE_FrameMenu:
        DrawBox(*painter, option->rect, radii::menu, QColor(), m_colors.rule);
        return;
    case PE_PanelItemViewItem:
        if ((option->state & State_Selected) != 0) {
            painter->fillRect(option->rect, m_colors.selectedGround);
        }
        return;
    case PE_PanelMenuBar:
    case PE_FrameFocusRect:
        return;
    case PE_PanelButtonTool:
        DrawToolButton(*option, *painter);
        return;
    case PE_IndicatorToolBarSeparator: {
        const QRect& area = option->rect;
        DrawRule(*painter, QRectF(area.center().x(), area.center().y() - 8, 1, 18), Qt::Vertical, m_colors.rule);
        return;
    }
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        DrawIndicator(*option, *painter, element == PE_IndicatorRadioButton);
        return;
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
        if (As<QStyleOptionFrame>(option).lineWidth > 0) {
            DrawField(*option, *painter);
        }
        return;
    case PE_PanelScrollAreaCorner:
        painter->fillRect(option->rect, m_colors.window);
        return;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, option->palette.color(QPalette::ToolTipBase));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void DeskStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_MenuBarItem:
        DrawMenuBarItem(As<QStyleOptionMenuItem>(option), *painter, widget);
        return;
    case CE_MenuBarEmptyArea:
    case CE_ToolBar:
        painter->fillRect(option->rect, m_colors.window);
        return;
    case CE_MenuItem:
        DrawMenuItem(As<QStyleOptionMenuItem>(option), *painter, widget);
        return;
    case CE_MenuEmptyArea:
        return;
    case CE_PushButtonBevel:
        DrawPushButton(As<QStyleOptionButton>(option), *painter);
        return;
    case CE_PushButtonLabel:
        DrawPushButtonText(As<QStyleOptionButton>(option), *painter, widget);
        return;
    case CE_ProgressBar:
        DrawProgressBar(As<QStyleOptionProgressBar>(option), *painter);
        return;
    case CE_ItemViewItem: {
        QStyleOptionViewItem item = As<QStyleOptionViewItem>(option);
        item.palette.setColor(QPalette::HighlightedText, m_colors.selectedText);
        QProxyStyle::drawControl(element, &item, painter, widget);
        return;
    }
    case CE_ShapedFrame:
        if (IsListPopup(widget)) {
            DrawBox(*painter, option->rect, 0, m_colors.menu, m_colors.rule);
        } else {
            QProxyStyle::drawControl(element, option, painter, widget);
        }
        return;
    case CE_TabBarTab:
        DrawTab(As<QStyleOptionTab>(option), *painter);
        return;
    case CE_FocusFrame:
        DrawFocusRing(option->rect, *painter);
        return;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    if (control == CC_ScrollBar) {
        DrawScrollBar(As<QStyleOptionSlider>(option), *painter);
    } else if (control == CC_ComboBox) {
        DrawComboBox(As<QStyleOptionComboBox>(option), *painter);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect DeskStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    if (control == CC_ScrollBar) {
        return visualRect(option->direction, option->rect, ScrollBarPart(As<QStyleOptionSlider>(option), part));
    }
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        const int odd = (option->rect.height() - option->fontMetrics.height()) % 2; // level with text in fields
        return visualRect(option->direction, option->rect, option->rect.adjusted(7, 1, -24, -1 - odd));
    }
    if (control == CC_ComboBox && part == SC_ComboBoxListBoxPopup) {
        return option->rect.adjusted(0, 0, 0, 3); // the list opens just below
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect DeskStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents && As<QStyleOptionFrame>(option).lineWidth > 0) {
        return option->rect.adjusted(6, 1, -4, -2); // so that the text is level with the caption beside it
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_MenuBarPanelWidth:
    case PM_MenuBarItemSpacing:
    case PM_MenuVMargin:
    case PM_MenuHMargin:
    case PM_ToolBarFrameWidth:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_ScrollView_ScrollBarOverlap: // a page keeps its margin for it, so nothing shifts
        return LiesOverContent(widget) ? scrollBarExtent : 0;
    case PM_MenuBarHMargin:
    case PM_MenuPanelWidth:
        return 4;
    case PM_MenuBarVMargin:
        return 2;
    case PM_MessageBoxIconSize:
        return 32;
    case PM_ToolBarItemSpacing:
        return 2;
    case PM_ToolBarItemMargin:
        return 4;
    case PM_ToolBarSeparatorExtent:
        return 9; // 11 with the gap
    case PM_ToolBarIconSize:
    case PM_SmallIconSize:
        return 20;
    case PM_ScrollBarExtent:
        return scrollBarExtent;
    case PM_ScrollBarSliderMin:
        return 32;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QMenu*>(widget) != nullptr ? 0 : 1;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 16;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        if (widget != nullptr && qobject_cast<const QFocusFrame*>(widget) == nullptr) {
            return itemMargin - 1; // of the text in a list
        }
        return RingDistance(m_ring == nullptr ? nullptr : m_ring->widget());
    case PM_SplitterWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon DeskStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxInformation:
        return IconOf("information");
    case SP_MessageBoxQuestion:
        return IconOf("question");
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return IconOf("error");
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    switch (hint) {
    case SH_FocusFrame_AboveWidget:
    case SH_MenuBar_MouseTracking:
    case SH_Menu_MouseTracking:
        return 1;
    case SH_UnderlineShortcut:
        return UnderlinesLetters(widget) ? 1 : 0;
    case SH_Menu_Mask:
        if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(answer)) {
            QPainterPath shape;
            shape.addRoundedRect(option->rect, radii::menu, radii::menu);
            mask->region = QRegion(shape.toFillPolygon().toPolygon());
        }
        return 1;
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
    case SH_Menu_Scrollable:
        return hint == SH_Menu_Scrollable ? 1 : 0;
    case SH_FocusFrame_Mask:
        if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(answer)) {
            const QRect inner = option->rect.adjusted(3, 3, -3, -3);
            mask->region = QRegion(option->rect) - inner;
        }
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}

} // namespace quor
