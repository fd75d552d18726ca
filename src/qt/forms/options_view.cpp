// An array of options: side by side, or under each other where they don't fit.

#include "forms/fields.h"
#include "qt/forms/view_of.h"

#include <QRadioButton>

#include <numeric>
#include <vector>

namespace quor {

namespace {

constexpr int optionPitch = 26; // pixels, from one option to the one below it
constexpr int optionGap = 16;   // to the one beside it

class OptionsBox final : public QWidget {
public:
    explicit OptionsBox(QWidget& parent) : QWidget(&parent) {}

    QRadioButton& Add(const QString& caption)
    {
        m_options.push_back(new QRadioButton(caption, this));
        m_options.back()->setAccessibleName(caption);
        return *m_options.back();
    }

    const std::vector<QRadioButton*>& Options() const noexcept { return m_options; }

    int WidthSideBySide() const
    {
        return std::accumulate(m_options.begin(), m_options.end(), -optionGap, [](int sum, const QRadioButton* option) {
            return sum + optionGap + option->sizeHint().width();
        });
    }

protected:
    void resizeEvent(QResizeEvent* /*event*/) override
    {
        const bool isColumn = width() < WidthSideBySide();
        QPoint at;
        for (QRadioButton* option : m_options) {
            const QSize size(option->sizeHint().width(), BoxHeight(*option));
            option->setGeometry(QRect(at, size).translated(0, (optionPitch - size.height()) / 2));
            at += isColumn ? QPoint(0, optionPitch) : QPoint(size.width() + optionGap, 0);
        }
    }

private:
    std::vector<QRadioButton*> m_options;
};

class OptionsView final : public ViewOf<OptionArray, OptionsBox> {
public:
    OptionsView(OptionArray& options, QWidget& parent) : ViewOf(options, new OptionsBox(parent))
    {
        for (const std::string& caption : options.Captions()) {
            const auto index = static_cast<std::int32_t>(Shown().Options().size());
            QRadioButton& button = Shown().Add(ToQt(caption));
            button.setObjectName(ToQt(options.Name() + '(' + std::to_string(index) + ')'));
            QObject::connect(&button, &QRadioButton::clicked, &Shown(),
                             [this, index] { FromUserAndRead([&] { Model().Choose(index); }); });
        }
    }
    int NaturalWidth() const override { return Shown().WidthSideBySide(); }
    int LineHeight(int width) const override
    {
        return width < Shown().WidthSideBySide() ? optionPitch * static_cast<int>(Shown().Options().size()) : 0;
    }
    std::vector<QWidget*> Stops() const override { return {Shown().Options().begin(), Shown().Options().end()}; }

private:
    void ReadLook() override
    {
        std::int32_t index = 0;
        for (QRadioButton* button : Shown().Options()) {
            // Without this a group keeps one option chosen.
            button->setAutoExclusive(false);
            button->setChecked(index++ == Model().Index());
            button->setAutoExclusive(true);
        }
    }
};

} // namespace

std::unique_ptr<ControlView> MakeOptionsView(Control& control, QWidget& parent)
{
    return MakeFirstOf<OptionsView>(control, parent);
}

} // namespace quor
