#include "base/text.h"
#include "forms/fields.h"
#include "qt/forms/swatch_button.h"
#include "qt/forms/view_of.h"
#include "qt/theme/theme.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace quor {

namespace {

constexpr int fieldHeight = 24;

class ListView final : public ViewOf<ListBox, QComboBox> {
public:
    ListView(ListBox& list, QWidget& parent) : ViewOf(list, new QComboBox(&parent))
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

private:
    void ReadLook() override
    {
        Shown().setText(ToQt(Model().Caption()));
        Shown().setChecked(Model().Value());
    }
};

// The options stand side by side.
class OptionsView final : public ViewOf<OptionArray, QWidget> {
public:
    OptionsView(OptionArray& options, QWidget& parent) : ViewOf(options, new QWidget(&parent))
    {
        auto* row = new QHBoxLayout(&Shown());
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(16);
        for (const std::string& caption : options.Captions()) {
            const auto index = static_cast<int>(m_buttons.size());
            auto* button = new QRadioButton(ToQt(caption), &Shown());
            button->setObjectName(ToQt(options.Name() + '(' + std::to_string(index) + ')'));
            row->addWidget(button);
            m_buttons.push_back(button);
            QObject::connect(button, &QRadioButton::clicked, &Shown(),
                             [this, index] { FromUserAndRead([&] { Model().Choose(index); }); });
        }
        row->addStretch();
    }

private:
    void ReadLook() override
    {
        for (std::size_t index = 0; index < m_buttons.size(); ++index) {
            // Without this a group keeps one option chosen.
            m_buttons[index]->setAutoExclusive(false);
            m_buttons[index]->setChecked(static_cast<std::int32_t>(index) == Model().Index());
            m_buttons[index]->setAutoExclusive(true);
        }
    }

    std::vector<QRadioButton*> m_buttons;
};

class TextView final : public ViewOf<TextBox, QLineEdit> {
public:
    TextView(TextBox& box, QWidget& parent) : ViewOf(box, new QLineEdit(&parent))
    {
        QObject::connect(&Shown(), &QLineEdit::textEdited, &Shown(),
                         [this](const QString& text) { FromUserAndRead([&] { Model().Type(FromQt(text)); }); });
    }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override
    {
        Shown().setReadOnly(Model().ReadOnly());
        const QString text = ToQt(Model().Text());
        if (Shown().text() != text) { // else the caret would move
            Shown().setText(text);
        }
    }
};

class NumberView final : public ViewOf<NumberField, QLineEdit> {
public:
    NumberView(NumberField& field, QWidget& parent) : ViewOf(field, new QLineEdit(&parent))
    {
        Shown().setAlignment(Qt::AlignRight);
        QObject::connect(&Shown(), &QLineEdit::textEdited, &Shown(), [this](const QString& text) {
            m_isTyping = true;
            FromUser([&] { Model().Type(FromQt(text)); });
            m_isTyping = false;
        });
        // What was refused stands only while the user may still be typing.
        QObject::connect(&Shown(), &QLineEdit::editingFinished, &Shown(), [this] { FromUserAndRead([] {}); });
    }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override
    {
        const QString text = ToQt(Decimal(Model().Value()));
        if (!m_isTyping && Shown().text() != text) {
            Shown().setText(text);
        }
    }

    bool m_isTyping = false;
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
        auto* column = new QVBoxLayout(&Shown());
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(10);
        column->addWidget(rule);
        column->addWidget(m_title, 1, Qt::AlignTop);
    }

private:
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
        return std::make_unique<OptionsView>(*options, parent);
    }
    if (auto* text = dynamic_cast<TextBox*>(&control)) {
        return std::make_unique<TextView>(*text, parent);
    }
    if (auto* number = dynamic_cast<NumberField*>(&control)) {
        return std::make_unique<NumberView>(*number, parent);
    }
    if (auto* swatch = dynamic_cast<Swatch*>(&control)) {
        return std::make_unique<SwatchView>(*swatch, parent);
    }
    if (auto* frame = dynamic_cast<Frame*>(&control)) {
        return std::make_unique<FrameView>(*frame, theme, parent);
    }
    return nullptr;
}

} // namespace quor
