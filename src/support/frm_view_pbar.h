#pragma once
// The progress of a long load. One instance serves the program; its user loads it, shows it where that is worth it, and
// unloads it by CloseMe.

#include "forms/form.h"

namespace quor {

class Forms;

class frmViewPBar final : public Form {
public:
    explicit frmViewPBar(Forms& forms);

    Label& lblStatus = Make<Label>("lblStatus", "", LabelRole::Message);
    ProgressBar& pbrConfig = Make<ProgressBar>("pbrConfig");

    Event<std::int32_t> Stepped; // the bar's value, at each IncrProgBar, before the event loop may run

    // None of these fails; a value beyond the maximum changes nothing.
    void InitPBar(const std::string& caption, std::int16_t maximum) noexcept;
    void SetProgBar(std::int32_t value) noexcept;
    void CloseMe() noexcept;

    // One more; then the event loop may run, whether the form is shown or not: it keeps its pause.
    void IncrProgBar() noexcept;

private:
    void Form_Load() override;

    Forms& m_forms;
};

} // namespace quor
