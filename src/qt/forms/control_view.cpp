#include "qt/forms/control_view.h"

#include "base/failure.h"
#include "forms/caption.h"
#include "qt/forms/headed_text.h"
#include "qt/forms/sign.h"
#include "qt/forms/view_of.h"
#include "qt/theme/theme.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace quor {

namespace {

constexpr std::string_view browseCaption = "..."; // says nothing by itself: the caption beside it does

class LabelView final : public ViewOf<Label, QLabel> {
public:
    LabelView(Label& label, const Theme& theme, QWidget& parent) : ViewOf(label, new QLabel(&parent))
    {
        Shown().setTextFormat(Qt::PlainText);
        switch (label.Role()) {
        case LabelRole::Text:
            break;
        case LabelRole::Caption:
            Shown().setForegroundRole(QPalette::PlaceholderText);
            break;
        case LabelRole::Message:
            Shown().setFont(theme.MenuFont());
            break;
        case LabelRole::Heading:
            Shown().setFont(theme.TitleFont());
            Shown().setForegroundRole(QPalette::PlaceholderText);
            break;
        case LabelRole::Title:
            Shown().setFont(theme.HeadingFont());
            break;
        case LabelRole::Headed:
            break; // a view of its own
        }
    }

private:
    void ReadLook() override
    {
        const Qt::Alignment across = Model().AlignRight() ? Qt::AlignRight : Qt::AlignLeft;
        Shown().setAlignment(across | (Model().WordWrap() ? Qt::AlignTop : Qt::AlignVCenter));
        Shown().setWordWrap(Model().WordWrap());
        Shown().setText(ToQt(Model().Caption()));
    }
};

// The first line as a heading, the others below it in the colour of captions.
class HeadedView final : public ViewOf<Label, HeadedText> {
public:
    HeadedView(Label& label, const Theme& theme, QWidget& parent) : ViewOf(label, new HeadedText(theme, &parent)) {}

private:
    void ReadLook() override { Shown().SetText(ToQt(Model().Caption())); }
};

class ButtonView final : public ViewOf<Button, QPushButton> {
public:
    ButtonView(Button& button, QWidget& parent) : ViewOf(button, new QPushButton(&parent))
    {
        QObject::connect(&Shown(), &QPushButton::clicked, &Shown(), [this] { FromUser([this] { Model().Push(); }); });
    }
    int NaturalWidth() const override
    {
        constexpr int padding = 16;
        constexpr int step = 4;
        return (TextWidth() + 2 * padding + step - 1) / step * step;
    }
    int NaturalHeight() const override { return 28; }
    int FittingWidth(int asked) const override
    {
        constexpr int leastPadding = 6;
        return TextWidth() + 2 * leastPadding <= asked ? asked : NaturalWidth();
    }

private:
    void ReadLook() override
    {
        Shown().setText(ToQt(Model().Caption()));
        if (Model().Caption() == browseCaption) {
            Shown().setAccessibleDescription(QStringLiteral("Browse"));
        } else {
            Shown().setAccessibleName(ToQt(PlainCaption(Model().Caption())));
        }
        Shown().setDefault(Model().Default());
    }
    int TextWidth() const { return Shown().fontMetrics().horizontalAdvance(ToQt(PlainCaption(Model().Caption()))); }
};

class ProgressView final : public ViewOf<ProgressBar, QProgressBar> {
public:
    ProgressView(ProgressBar& bar, QWidget& parent) : ViewOf(bar, new QProgressBar(&parent))
    {
        Shown().setTextVisible(false);
    }

private:
    void ReadLook() override
    {
        Shown().setMaximum(Model().Maximum());
        Shown().setValue(Model().Value());
    }
};

class ImageView final : public ViewOf<Image, Sign> {
public:
    ImageView(Image& image, const Theme& theme, QWidget& parent) : ViewOf(image, new Sign(theme, parent)) {}

private:
    void ReadLook() override { Shown().SetIcon(Model().Icon()); }
};

class RuleView final : public ViewOf<Rule, QWidget> {
public:
    RuleView(Rule& rule, QWidget& parent) : ViewOf(rule, new QWidget(&parent))
    {
        Shown().setBackgroundRole(QPalette::Mid);
        Shown().setAutoFillBackground(true);
    }
    int NaturalHeight() const override { return 1; }
};

} // namespace

std::unique_ptr<ControlView> MakeControlView(Control& control, const Theme& theme, QWidget& parent)
{
    if (auto* label = dynamic_cast<Label*>(&control)) {
        if (label->Role() == LabelRole::Headed) {
            return std::make_unique<HeadedView>(*label, theme, parent);
        }
        return std::make_unique<LabelView>(*label, theme, parent);
    }
    if (auto* button = dynamic_cast<Button*>(&control)) {
        return std::make_unique<ButtonView>(*button, parent);
    }
    if (auto* bar = dynamic_cast<ProgressBar*>(&control)) {
        return std::make_unique<ProgressView>(*bar, parent);
    }
    if (auto* image = dynamic_cast<Image*>(&control)) {
        return std::make_unique<ImageView>(*image, theme, parent);
    }
    if (auto* rule = dynamic_cast<Rule*>(&control)) {
        return std::make_unique<RuleView>(*rule, parent);
    }
    if (auto field = MakeFieldView(control, theme, parent)) {
        return field;
    }
    if (auto pane = MakePaneView(control, theme, parent)) {
        return pane;
    }
    throw Failure(failures::typeMismatch);
}

} // namespace quor
