#include "qt/forms/control_view.h"

#include "base/failure.h"
#include "forms/caption.h"
#include "qt/forms/tab.h"
#include "qt/forms/view_of.h"
#include "qt/theme/theme.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

namespace quor {

namespace {

constexpr std::string_view browseCaption = "..."; // says nothing by itself: the caption beside it does

class LabelView final : public ViewOf<Label, QLabel> {
public:
    LabelView(Label& label, QWidget& parent) : ViewOf(label, new QLabel(&parent))
    {
        Shown().setTextFormat(Qt::PlainText);
        switch (label.Role()) {
        case LabelRole::Text:
            break;
        case LabelRole::Caption:
            Shown().setForegroundRole(QPalette::PlaceholderText);
            break;
        case LabelRole::Message:
            Shown().setFont(MenuFont());
            break;
        case LabelRole::Heading:
            Shown().setFont(TitleFont());
            Shown().setForegroundRole(QPalette::PlaceholderText);
            break;
        case LabelRole::Title:
            Shown().setFont(HeadingFont());
            break;
        case LabelRole::Headed:
        case LabelRole::Tab:
            break; // have views of their own
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
class HeadedView final : public ViewOf<Label, QWidget> {
public:
    HeadedView(Label& label, QWidget& parent) : ViewOf(label, new QWidget(&parent)), m_lines(new QVBoxLayout(&Shown()))
    {
        m_lines->setAlignment(Qt::AlignTop);
        m_lines->setContentsMargins(0, 0, 0, 0);
        m_lines->setSpacing(0);
    }

private:
    void ReadLook() override
    {
        qDeleteAll(Shown().findChildren<QLabel*>());
        for (const QString& text : ToQt(Model().Caption()).split(QLatin1Char('\n'))) {
            const bool isHeading = m_lines->isEmpty();
            auto* line = new QLabel(text);
            line->setTextFormat(Qt::PlainText);
            line->setFixedHeight(isHeading ? 24 : 18);
            line->setContentsMargins(0, 0, 0, isHeading ? 2 : 0);
            line->setFont(isHeading ? TitleFont() : line->font());
            line->setForegroundRole(isHeading ? QPalette::WindowText : QPalette::PlaceholderText);
            m_lines->addWidget(line);
        }
    }

    QVBoxLayout* m_lines;
};

// The only tab of a form: there is nothing to choose.
class TabView final : public ViewOf<Label, Tab> {
public:
    TabView(Label& label, QWidget& parent) : ViewOf(label, new Tab(&parent)) { Shown().setChecked(true); }
    int NaturalHeight() const override { return Tab::tabHeight; }

private:
    void ReadLook() override { Shown().setText(ToQt(Model().Caption())); }
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

// Shows an icon at the widget's size.
class IconBox final : public QWidget {
public:
    using QWidget::QWidget;

    void SetIcon(const QIcon& icon)
    {
        m_icon = icon;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    QIcon m_icon;
};

class ImageView final : public ViewOf<Image, IconBox> {
public:
    ImageView(Image& image, QWidget& parent) : ViewOf(image, new IconBox(&parent)) {}

private:
    void ReadLook() override { Shown().SetIcon(IconOf(Model().Icon())); }
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

std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent)
{
    if (const auto* label = dynamic_cast<Label*>(&control)) {
        switch (label->Role()) {
        case LabelRole::Headed:
            return MakeFirstOf<HeadedView>(control, parent);
        case LabelRole::Tab:
            return MakeFirstOf<TabView>(control, parent);
        default:
            return MakeFirstOf<LabelView>(control, parent);
        }
    }
    auto view = MakeFirstOf<ButtonView, ProgressView, ImageView, RuleView>(control, parent);
    for (const auto make : {MakeFieldView, MakeTypedView, MakeOptionsView, MakePaneView}) {
        view = view != nullptr ? std::move(view) : make(control, parent);
    }
    if (view == nullptr) {
        throw Failure(failures::typeMismatch);
    }
    return view;
}

} // namespace quor
