#include "forms/fields.h"
#include "qt/forms/view_of.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QWheelEvent>

namespace quor {

namespace {

constexpr int fieldHeight = 24;

// The wheel belongs to the page unless the list has the keyboard.
class DropDown final : public QComboBox {
public:
    explicit DropDown(QWidget& parent) : QComboBox(&parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

class ListView final : public ViewOf<ListBox, QComboBox> {
public:
    ListView(ListBox& list, QWidget& parent) : ViewOf(list, new DropDown(parent))
    {
        QObject::connect(&Shown(), &QComboBox::activated, &Shown(),
                         [this](int index) { FromUserAndRead([&] { Model().Choose(index); }); });
    }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override
    {
        const auto count = static_cast<int>(Model().Items().size());
        while (Shown().count() > count) {
            Shown().removeItem(Shown().count() - 1);
        }
        for (int row = 0; row < count; ++row) {
            const QString item = ToQt(Model().Items()[static_cast<std::size_t>(row)]);
            if (row == Shown().count()) {
                Shown().addItem(item);
            } else if (Shown().itemText(row) != item) {
                Shown().setItemText(row, item);
            }
        }
        Shown().setCurrentIndex(Model().ListIndex());
    }
};

class CheckView final : public ViewOf<CheckBox, QCheckBox> {
public:
    CheckView(CheckBox& box, QWidget& parent) : ViewOf(box, new QCheckBox(&parent))
    {
        QObject::connect(&Shown(), &QCheckBox::clicked, &Shown(),
                         [this] { FromUserAndRead([&] { Model().Toggle(); }); });
    }
    int NaturalHeight() const override { return BoxHeight(Shown()); }

private:
    void ReadLook() override
    {
        Shown().setText(ToQt(Model().Caption()));
        Shown().setChecked(Model().Value());
    }
};

// The colour within a frame, or the caption where there is one.
class SwatchButton final : public QAbstractButton {
public:
    explicit SwatchButton(QWidget& parent) : QAbstractButton(&parent) { setAttribute(Qt::WA_Hover); }

    void ShowColor(const QColor& color, const QString& caption)
    {
        m_color = color;
        setText(caption);
        update();
    }
    QSize sizeHint() const override { return {56, fieldHeight}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        constexpr int frame = 3; // pixels around the colour
        QPainter painter(this);
        const QPalette& look = palette();
        if (!isEnabled() || !text().isEmpty()) {
            DrawBox(painter, rect(), radii::control, look.color(QPalette::Disabled, QPalette::Base),
                    look.color(QPalette::Mid));
            painter.setPen(look.color(QPalette::Active, QPalette::PlaceholderText));
            painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
            return;
        }
        const auto ground = isDown() ? QPalette::Mid : underMouse() ? QPalette::Midlight : QPalette::Base;
        DrawBox(painter, rect(), radii::control, look.color(ground), look.color(QPalette::Dark));
        DrawBox(painter, rect().adjusted(frame, frame, -frame, -frame), 1, m_color, WithAlpha(Qt::black, 0.22));
    }

private:
    QColor m_color;
};

class SwatchView final : public ViewOf<Swatch, SwatchButton> {
public:
    SwatchView(Swatch& swatch, QWidget& parent) : ViewOf(swatch, new SwatchButton(parent))
    {
        QObject::connect(&Shown(), &SwatchButton::clicked, &Shown(), [this] { FromUser([this] { Model().Push(); }); });
    }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override { Shown().ShowColor(ToQt(Resolve(Model().BackColor())), ToQt(Model().Caption())); }
};

// A rule over the width with the title below it.
class FrameView final : public ViewOf<Frame, QWidget> {
public:
    FrameView(Frame& frame, QWidget& parent) : ViewOf(frame, new QWidget(&parent)), m_title(new QLabel(&Shown()))
    {
        auto* rule = new QWidget(&Shown());
        rule->setBackgroundRole(QPalette::Mid);
        rule->setAutoFillBackground(true);
        rule->setFixedHeight(1);
        m_title->setTextFormat(Qt::PlainText);
        m_title->setFont(TitleFont());
        m_title->setFixedHeight(titleHeight);
        auto* column = new QVBoxLayout(&Shown());
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(titleGap);
        column->addWidget(rule);
        column->addWidget(m_title);
        column->addStretch();
    }

private:
    // Pixels: ten from the rule to the title's letters, which stand in the middle of the label.
    static constexpr int titleGap = 7;
    static constexpr int titleHeight = 20;

    void ReadLook() override { m_title->setText(ToQt(Model().Caption())); }

    QLabel* m_title;
};

} // namespace

std::unique_ptr<ControlView> MakeFieldView(Control& control, QWidget& parent)
{
    return MakeFirstOf<ListView, CheckView, SwatchView, FrameView>(control, parent);
}

} // namespace quor
