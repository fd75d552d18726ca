#pragma once
// The progress of a long load. One instance serves the program.

#include "forms/form.h"
#include "platform/load_progress.h"
#include "platform/trace.h"

namespace quor {

class Forms;

class frmViewPBar final : public Form, public LoadProgress {
public:
    explicit frmViewPBar(Forms& forms, const Trace& trace = noTrace);

    Label& lblStatus = Make<Label>("lblStatus", "", LabelRole::Message);
    ProgressBar& pbrConfig = Make<ProgressBar>("pbrConfig");

    // None of these fails; a value beyond the maximum changes nothing.
    void InitPBar(const std::string& caption, std::int16_t maximum) noexcept;
    void SetProgBar(std::int32_t value) noexcept;

    void Begin(const std::string& caption, std::int16_t maximum, bool isShown) override;
    void IncrProgBar() noexcept override;
    void CloseMe() noexcept override;

private:
    void Form_Load() override;

    Forms& m_forms;
    const Trace& m_trace;
};

} // namespace quor
