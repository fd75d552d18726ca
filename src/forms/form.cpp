#include "forms/form.h"

#include "base/guard.h"

namespace quor {

namespace {

template <class Flag> Button* FindButton(const Form& form, Flag flag)
{
    for (const std::unique_ptr<Control>& control : form.Controls()) {
        auto* button = dynamic_cast<Button*>(control.get());
        if (button != nullptr && button->Visible() && (button->*flag)()) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

Form::~Form()
{
    IgnoreFailure([this] { Unload(); });
}

Button* Form::DefaultButton() const
{
    return FindButton(*this, &Button::Default);
}

Button* Form::CancelButton() const
{
    return FindButton(*this, &Button::Cancel);
}

void Form::Load()
{
    if (m_isLoaded) {
        return;
    }
    m_isLoaded = true;
    try {
        Form_Load();
    } catch (...) {
        m_isLoaded = false;
        throw;
    }
}

void Form::Unload()
{
    if (m_isLoaded) {
        m_isLoaded = false;
        Unloaded.Raise();
    }
}

void Form::Arrange(int margin, std::vector<LayoutLine> lines)
{
    m_margin = margin;
    m_layout = std::move(lines);
    Changed.Raise();
}

} // namespace quor
