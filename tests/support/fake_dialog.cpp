#include "tests/support/fake_dialog.h"

#include <stdexcept>
#include <string_view>

namespace quor {

void FakeDialog::WillOpen(std::string path)
{
    m_steps.push_back({DialogKind::Open, [this, path = std::move(path)] { FileName = path; }});
}

void FakeDialog::WillSave(std::string path)
{
    m_steps.push_back({DialogKind::Save, [this, path = std::move(path)] { FileName = path; }});
}

void FakeDialog::WillPickColor(quor::Color color)
{
    m_steps.push_back({DialogKind::Color, [this, color] { Color = color; }});
}

void FakeDialog::WillPickFont(std::function<void(CommonDialog&)> choice)
{
    m_steps.push_back({DialogKind::Font, [this, choice = std::move(choice)] { choice(*this); }});
}

void FakeDialog::WillCancel()
{
    m_steps.push_back({DialogKind::Open, nullptr});
}

void FakeDialog::ShowOpen()
{
    if (!Run(DialogKind::Open)) {
        FileName.clear();
    }
}

void FakeDialog::ShowSave()
{
    if (!Run(DialogKind::Save)) {
        FileName.clear();
    }
}

void FakeDialog::ShowColor()
{
    Run(DialogKind::Color);
}

void FakeDialog::ShowFont()
{
    Run(DialogKind::Font);
}

bool FakeDialog::Run(DialogKind kind)
{
    constexpr std::string_view calls[] = {"open", "save", "color", "font"};
    planned.Count(calls[static_cast<std::size_t>(kind)]);
    Shown.Raise(kind);
    if (m_steps.empty()) {
        return false;
    }
    const Step step = std::move(m_steps.front());
    m_steps.pop_front();
    if (!step.act) {
        return false;
    }
    if (step.kind != kind) {
        throw std::logic_error("the script expects a dialog of another kind");
    }
    step.act();
    return true;
}

} // namespace quor
