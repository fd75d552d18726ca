#pragma once
// The common dialog with a user who follows a script.

#include "base/event.h"
#include "platform/common_dialog.h"
#include "tests/support/planned_failures.h"

#include <deque>
#include <functional>

namespace quor {

enum class DialogKind { Open, Save, Color, Font };

class FakeDialog final : public CommonDialog {
public:
    PlannedFailures planned; // open, save, color, font
    Event<DialogKind> Shown; // before the user does anything

    // What the user will do in the next dialogs, in their order; without, cancel. A dialog of another kind fails.
    void WillOpen(std::string path);
    void WillSave(std::string path);
    void WillPickColor(quor::Color color);
    void WillPickFont(std::function<void(CommonDialog&)> choice); // sets the six attributes
    void WillCancel();

    void ShowOpen() override;
    void ShowSave() override;
    void ShowColor() override;
    void ShowFont() override;

private:
    struct Step {
        DialogKind kind;
        std::function<void()> act; // none: cancel, in a dialog of any kind
    };
    // True if the user went through with it.
    bool Run(DialogKind kind);

    std::deque<Step> m_steps;
};

} // namespace quor
