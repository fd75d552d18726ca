#pragma once
// The progress of a long load. One instance serves the program.

#include "forms/form.h"
#include "platform/load_progress.h"

namespace quor {

class Forms;

class frmViewPBar final : public Form, public LoadProgress {
public:
    explicit frmViewPBar(Forms& forms);

    Label& lblStatus = Make<Label>("lblStatus", "", LabelRole::Message);
    ProgressBar& pbrConfig = Make<ProgressBar>("pbrConfig");

    Event<std::int32_t> Stepped; // the bar's value, at each IncrProgBar, before the event loop may run

    // None of these fails; a value beyond the maximum changes nothing.
    void InitPBar(const std::string& caption, std::int16_t maximum) noexcept;
    void SetProgBar(std::int32_t value) noexcept;

    void Begin(const std::string& caption, std::int16_t maximum, bool isShown) override;
    void IncrProgBar() noexcept override;
    void CloseMe() noexcept override;

private:
    void Form_Load() override;

    Forms& m_forms;
};

} // namespace quor
