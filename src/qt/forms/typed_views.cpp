// Text and number fields: what is typed reaches the model at every keystroke, and the caret stays where it is.

#include "base/text.h"
#include "forms/fields.h"
#include "qt/forms/view_of.h"

#include <QLineEdit>
#include <QValidator>

#include <algorithm>
#include <cmath>
#include <functional>

namespace quor {

namespace {

constexpr int fieldHeight = 24; // pixels

// Another text in the field: whoever is typing keeps caret and selection, else its beginning shows.
void ShowText(QLineEdit& field, const QString& text)
{
    if (field.text() == text) {
        return;
    }
    const int caret = field.cursorPosition();
    const int start = field.selectionStart();
    const int end = field.selectionEnd();
    field.setText(text);
    if (!field.hasFocus()) {
        field.home(false);
    } else if (start < 0) {
        field.setCursorPosition(caret);
    } else {
        field.setSelection(caret == start ? end : start, caret == start ? start - end : end - start);
    }
}

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
        Shown().setEchoMode(Model().Masked() ? QLineEdit::Password : QLineEdit::Normal);
        QPalette own;
        const Color ground = Model().BackColor();
        if (ground != colors::window && ground != colors::buttonFace) { // which are the theme's own
            own.setColor(QPalette::Base, ToQt(Resolve(ground)));
        }
        Shown().setPalette(own);
        ShowText(Shown(), ToQt(Model().Text()));
    }
};

// Refuses a keystroke that can't lead to a number in the range.
class RangeGuard final : public QValidator {
public:
    RangeGuard(QObject& owner, std::function<State(const QString&)> judge, std::function<QString()> present)
        : QValidator(&owner), m_judge(std::move(judge)), m_present(std::move(present))
    {
    }

    State validate(QString& text, int& caret) const override
    {
        text = text.trimmed();
        caret = std::min(caret, static_cast<int>(text.size()));
        return m_judge(text);
    }
    void fixup(QString& text) const override { text = m_present(); }

private:
    std::function<State(const QString&)> m_judge;
    std::function<QString()> m_present;
};

class NumberView final : public ViewOf<NumberField, QLineEdit> {
public:
    NumberView(NumberField& field, QWidget& parent) : ViewOf(field, new QLineEdit(&parent))
    {
        Shown().setAlignment(Qt::AlignRight);
        Shown().setValidator(new RangeGuard(
            Shown(), [this](const QString& text) { return Judge(text); }, [this] { return Present(); }));
        QObject::connect(&Shown(), &QLineEdit::textEdited, &Shown(), [this](const QString& text) { Type(text); });
        // A number that was only begun stands no longer than the user types.
        QObject::connect(&Shown(), &QLineEdit::editingFinished, &Shown(), [this] { FromUserAndRead([] {}); });
    }
    int NaturalHeight() const override { return fieldHeight; }

private:
    void ReadLook() override
    {
        if (!m_isTyping) {
            ShowText(Shown(), Present());
        }
    }

    void Type(const QString& text)
    {
        m_isTyping = true;
        FromUser([&] { Model().Type(FromQt(text)); });
        m_isTyping = false;
    }

    // What the model holds is no fault of the user's, in its range or not.
    QValidator::State Judge(const QString& text) const
    {
        if (!IsAttached() || text == Present()) {
            return QValidator::Acceptable;
        }
        switch (Model().Judge(FromQt(text))) {
        case NumberField::Typing::Refused:
            return LeadsBack(text) ? QValidator::Intermediate : QValidator::Invalid;
        case NumberField::Typing::Begun:
            return QValidator::Intermediate;
        case NumberField::Typing::Done:
            break;
        }
        return QValidator::Acceptable;
    }

    // Digits taken off a number that code set out of the range.
    bool LeadsBack(const QString& text) const
    {
        const QString present = Present();
        return text.size() < present.size() && Model().Judge(FromQt(present)) == NumberField::Typing::Refused;
    }

    // With no more decimals than can be typed.
    QString Present() const
    {
        if (!IsAttached()) {
            return Shown().text();
        }
        const double scale = std::pow(10.0, Model().Decimals);
        return ToQt(Decimal(std::round(Model().Value() * scale) / scale));
    }

    bool m_isTyping = false;
};

} // namespace

std::unique_ptr<ControlView> MakeTypedView(Control& control, QWidget& parent)
{
    return MakeFirstOf<TextView, NumberView>(control, parent);
}

} // namespace quor
