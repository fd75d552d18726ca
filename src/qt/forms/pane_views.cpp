#include "forms/panes.h"
#include "qt/forms/view_of.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace quor {

namespace {

class PanelGround final : public QWidget {
public:
    PanelGround(FormPanel::Look look, QWidget& parent) : QWidget(&parent), m_look(look) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor rule = palette().color(QPalette::Mid);
        if (m_look == FormPanel::Look::Box) {
            DrawBox(painter, rect(), radii::control, palette().color(QPalette::Base), rule);
        } else {
            DrawRule(painter, QRectF(0, 0, width(), 1), Qt::Horizontal, rule);
            DrawRule(painter, QRectF(0, height() - 1, width(), 1), Qt::Horizontal, rule);
        }
    }

private:
    FormPanel::Look m_look;
};

class PanelView final : public ViewOf<FormPanel, PanelGround> {
public:
    PanelView(FormPanel& panel, QWidget& parent) : ViewOf(panel, new PanelGround(panel.Style(), parent)) {}
};

// An icon, for which there is room in any case, and a text.
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int text = option.fontMetrics.horizontalAdvance(index.data().toString());
        return {text + iconSize + 3 * padding, rowHeight};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const ThemeColors& colors = ColorsInUse();
        const QRect row = option.rect.adjusted(2, 1, -2, -1);
        const bool isChosen = (option.state & QStyle::State_Selected) != 0;
        if (isChosen || (option.state & QStyle::State_MouseOver) != 0) {
            DrawBox(*painter, row, radii::button, isChosen ? colors.selectedGround : colors.hover);
        }
        const QRect icon(row.left() + padding - 2, row.center().y() - iconSize / 2 + 1, iconSize, iconSize);
        index.data(Qt::DecorationRole).value<QIcon>().paint(painter, icon);
        painter->setPen(isChosen ? colors.selectedText : colors.text);
        painter->drawText(row.adjusted(iconSize + 2 * padding - 2, 0, -padding, 0),
                          Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, index.data().toString());
    }

private:
    static constexpr int rowHeight = 28; // pixels
    static constexpr int iconSize = 20;
    static constexpr int padding = 8;
};

// Drawn as a field; Enter and a double click open the chosen row.
class RowListWidget final : public QListWidget {
public:
    explicit RowListWidget(QWidget& parent) : QListWidget(&parent)
    {
        setFrameShape(QFrame::NoFrame);
        setViewportMargins(1, 3, 1, 3);
        setItemDelegate(new RowDelegate(this));
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerPixel);
        setMouseTracking(true);
        viewport()->setAutoFillBackground(false);
    }

    std::function<void()> onOpen;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::Paint) {
            return QListWidget::event(event);
        }
        QPainter painter(this); // the ground below the rows
        DrawBox(painter, rect(), radii::control, palette().color(QPalette::Active, QPalette::Base),
                palette().color(QPalette::Dark));
        return true;
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            onOpen();
        } else {
            QListWidget::keyPressEvent(event);
        }
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override
    {
        if (indexAt(event->position().toPoint()).isValid()) {
            onOpen();
        }
    }
};

class RowListView final : public ViewOf<RowList, RowListWidget> {
public:
    RowListView(RowList& list, QWidget& parent) : ViewOf(list, new RowListWidget(parent))
    {
        QObject::connect(&Shown(), &QListWidget::currentRowChanged, &Shown(), [this](int row) {
            if (!m_isReading) {
                FromUserAndRead([&] { Model().Choose(row); });
            }
        });
        Shown().onOpen = [this] { FromUserAndRead([&] { Model().Open(); }); };
    }

private:
    void ReadLook() override
    {
        m_isReading = true;
        if (m_rows != Model().Rows()) {
            m_rows = Model().Rows();
            Shown().clear();
            for (const RowList::Row& row : m_rows) {
                new QListWidgetItem(IconOf(row.icon), ToQt(row.text), &Shown());
            }
        }
        Shown().setCurrentRow(Model().Index());
        m_isReading = false;
    }

    std::vector<RowList::Row> m_rows; // as they are shown
    bool m_isReading = false;
};

} // namespace

std::unique_ptr<ControlView> MakePaneView(Control& control, QWidget& parent)
{
    return MakeFirstOf<PanelView, RowListView>(control, parent);
}

} // namespace quor
