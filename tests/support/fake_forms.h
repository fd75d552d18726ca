#pragma once
// The form runtime without a screen. A modal form stays open until it unloads itself, but its call returns at once.

#include "base/event.h"
#include "platform/forms.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace quor {

class FakeTimers;

class FakeForms final : public Forms {
public:
    explicit FakeForms(FakeTimers& timers);
    ~FakeForms() override;
    FakeForms(const FakeForms&) = delete;
    FakeForms& operator=(const FakeForms&) = delete;

    Event<Form&> Shown;      // it is on the screen from now on
    Event<Form&> ModalShown; // the same, above all others

    // The topmost form of that name on the screen, or null.
    Form* Find(std::string_view name) const;
    bool IsAnyShown() const noexcept { return !m_open.empty(); }

    void Show(Form& form) override;
    void ShowModal(std::unique_ptr<Form> form) override;
    void Hide(Form& form) override;
    void UnloadAll() override;
    void RunEvents() override;

private:
    struct Open;

    Form& Enter(Form& form, std::unique_ptr<Form> owned);

    FakeTimers& m_timers;
    std::optional<std::int64_t> m_lastRun;     // milliseconds
    std::vector<std::unique_ptr<Open>> m_open; // the topmost last
};

} // namespace quor
