#include "forms/fields.h"
#include "qt/forms/swatch_button.h"
#include "qt/forms/view_of.h"
#include "qt/theme/theme.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
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

class SwatchView final : public ViewOf<Swatch, SwatchButton> {
public:
    SwatchView(Swatch& swatch, QWidget& parent) : ViewOf(swatch, new SwatchButton(parent))
    {
        QObject::connect(&Shown(), &SwatchButton::clicked, &Shown(), [this] { FromUser([this] { Model().Push(); }); });
    }
    int NaturalWidth() const override { return 56; }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override { Shown().ShowColor(ToQt(Resolve(Model().BackColor())), ToQt(Model().Caption())); }
};

// A rule over the width with the title below it.
class FrameView final : public ViewOf<Frame, QWidget> {
public:
    FrameView(Frame& frame, const Theme& theme, QWidget& parent)
        : ViewOf(frame, new QWidget(&parent)), m_title(new QLabel(&Shown()))
    {
        auto* rule = new QWidget(&Shown());
        rule->setBackgroundRole(QPalette::Mid);
        rule->setAutoFillBackground(true);
        rule->setFixedHeight(1);
        m_title->setTextFormat(Qt::PlainText);
        m_title->setFont(theme.TitleFont());
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

std::unique_ptr<ControlView> MakeFieldView(Control& control, const Theme& theme, QWidget& parent)
{
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        return std::make_unique<ListView>(*list, parent);
    }
    if (auto* box = dynamic_cast<CheckBox*>(&control)) {
        return std::make_unique<CheckView>(*box, parent);
    }
    if (auto* options = dynamic_cast<OptionArray*>(&control)) {
        return MakeOptionsView(*options, parent);
    }
    if (auto* swatch = dynamic_cast<Swatch*>(&control)) {
        return std::make_unique<SwatchView>(*swatch, parent);
    }
    if (auto* frame = dynamic_cast<Frame*>(&control)) {
        return std::make_unique<FrameView>(*frame, theme, parent);
    }
    return MakeTypedView(control, parent);
}

} // namespace quor
