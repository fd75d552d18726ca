#pragma once
// The form runtime in the window system: any form in a window, and the event loop.

#include "base/event.h"
#include "platform/forms.h"

#include <QElapsedTimer>
#include <QPointer>

#include <vector>

class QWidget;

namespace quor {

class FormWindow;

class QtForms final : public Forms {
public:
    ~QtForms() override;

    // Forms stand above that window from now on.
    void SetMainWindow(QWidget* window);

    void Show(Form& form) override;
    void ShowModal(std::unique_ptr<Form> form) override;
    void Hide(Form& form) override;
    void UnloadAll() override;

    // Between two real runs lie a few milliseconds, so that a load may call it for each of thousands of records.
    void RunEvents() override;

private:
    // A form that was shown and is loaded still.
    struct Known {
        Form* form;
        FormWindow* window; // null while it is hidden
        Subscription unloaded;
    };

    std::vector<Known>::iterator Find(const Form& form);
    void Open(Form& form, bool isModal);
    void Forget(const Form& form);

    QPointer<QWidget> m_mainWindow;
    std::vector<Known> m_known;
    QElapsedTimer m_sinceRun;
};

} // namespace quor
