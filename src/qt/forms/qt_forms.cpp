#include "qt/forms/qt_forms.h"

#include "base/guard.h"
#include "forms/form.h"
#include "qt/forms/form_window.h"

#include <QApplication>
#include <QEventLoop>

#include <algorithm>

namespace quor {

QtForms::~QtForms()
{
    while (!m_known.empty()) {
        Forget(*m_known.back().form);
    }
}

void QtForms::SetMainWindow(QWidget* window)
{
    m_mainWindow = window;
}

void QtForms::Show(Form& form)
{
    form.Load();
    const auto known = Find(form);
    const bool isShown = known != m_known.end() && known->window != nullptr;
    if (form.IsLoaded() && !isShown) {
        Open(form, false);
    }
}

void QtForms::ShowModal(std::unique_ptr<Form> form)
{
    form->Load();
    if (!form->IsLoaded()) {
        return;
    }
    Open(*form, true);
    QEventLoop loop;
    const Subscription end = form->Unloaded.Subscribe([&loop] { loop.quit(); });
    loop.exec();
    Forget(*form); // the program may have ended beneath the form
}

void QtForms::Hide(Form& form)
{
    const auto known = Find(form);
    if (known != m_known.end() && known->window != nullptr) {
        std::exchange(known->window, nullptr)->Retire();
    }
}

void QtForms::UnloadAll()
{
    while (!m_known.empty()) {
        Form& form = *m_known.back().form;
        IgnoreFailure([&] { form.Unload(); });
        Forget(form);
    }
}

void QtForms::RunEvents()
{
    if (m_sinceRun.isValid() && m_sinceRun.elapsed() < pauseBetweenRuns) {
        return;
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceRun.start();
}

std::vector<QtForms::Known>::iterator QtForms::Find(const Form& form)
{
    return std::find_if(m_known.begin(), m_known.end(), [&](const Known& known) { return known.form == &form; });
}

void QtForms::Open(Form& form, bool isModal)
{
    Forget(form);
    QWidget* modal = QApplication::activeModalWidget();
    auto* window = new FormWindow(form, modal != nullptr ? modal : m_mainWindow.data());
    m_known.push_back({&form, window, form.Unloaded.Subscribe([this, &form] { Forget(form); })});
    window->setWindowModality(isModal ? Qt::ApplicationModal : Qt::NonModal);
    window->show();
}

void QtForms::Forget(const Form& form)
{
    const auto known = Find(form);
    if (known == m_known.end()) {
        return;
    }
    FormWindow* window = known->window;
    m_known.erase(known);
    if (window != nullptr) {
        window->Retire();
    }
}

} // namespace quor
