#include "tests/support/fake_forms.h"

#include "forms/form.h"
#include "tests/support/fake_timers.h"

#include <algorithm>

namespace quor {

struct FakeForms::Open {
    Form* form;
    std::unique_ptr<Form> owned; // of a modal form
    Subscription unloaded;
};

FakeForms::FakeForms(FakeTimers& timers) : m_timers(timers) {}

FakeForms::~FakeForms() = default;

Form* FakeForms::Find(std::string_view name) const
{
    const auto found =
        std::find_if(m_open.rbegin(), m_open.rend(), [&](const auto& open) { return open->form->Name() == name; });
    return found == m_open.rend() ? nullptr : (*found)->form;
}

void FakeForms::Show(Form& form)
{
    if (std::ranges::find(m_open, &form, &Open::form) == m_open.end()) {
        Shown.Raise(Enter(form, nullptr));
    }
}

void FakeForms::ShowModal(std::unique_ptr<Form> form)
{
    Form& shown = *form;
    ModalShown.Raise(Enter(shown, std::move(form)));
}

void FakeForms::Hide(Form& form)
{
    const auto found = std::ranges::find(m_open, &form, &Open::form);
    if (found != m_open.end()) {
        const std::unique_ptr<Open> ending = std::move(*found);
        m_open.erase(found);
    }
}

void FakeForms::UnloadAll()
{
    while (!m_open.empty()) {
        Form& form = *m_open.back()->form;
        form.Unload();
        Hide(form);
    }
}

void FakeForms::RunEvents()
{
    if (!m_lastRun || m_timers.Now() - *m_lastRun >= pauseBetweenRuns) {
        m_lastRun = m_timers.Now();
        m_timers.Advance(0);
    }
}

Form& FakeForms::Enter(Form& form, std::unique_ptr<Form> owned)
{
    form.Load();
    Subscription unloaded = form.Unloaded.Subscribe([this, &form] { Hide(form); });
    m_open.push_back(std::make_unique<Open>(Open{&form, std::move(owned), std::move(unloaded)}));
    return form;
}

} // namespace quor
