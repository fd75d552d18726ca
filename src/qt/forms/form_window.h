#pragma once
// A form in a window of its own: fixed in size, closed and answered by the keyboard as dialogs are.

#include "base/event.h"

#include <QDialog>

namespace quor {

class Form;
class FormView;

class FormWindow final : public QDialog {
public:
    FormWindow(Form& form, QWidget* owner);
    ~FormWindow() override;

    // Takes the window off the screen and lets go of the form; the window ends when the event loop runs.
    void Retire();

protected:
    void reject() override; // Escape
    void closeEvent(QCloseEvent* event) override;

private:
    void Follow();

    Form* m_form;
    FormView* m_view;
    Subscription m_following;
};

} // namespace quor
