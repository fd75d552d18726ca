#include "qt/forms/form_window.h"

#include "forms/form.h"
#include "qt/forms/form_view.h"
#include "qt/ports/qt_text.h"

#include <QCloseEvent>

namespace quor {

namespace {

Qt::WindowFlags FlagsFor(const Form& form)
{
    const Qt::WindowFlags always = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    return form.ControlBox() ? always | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint : always;
}

} // namespace

FormWindow::FormWindow(Form& form, QWidget* owner)
    : QDialog(owner, FlagsFor(form)), m_form(&form), m_view(new FormView(form, this)),
      m_following(form.Changed.Subscribe([this] { Follow(); }))
{
    Follow();
    if (QWidget* first = m_view->FirstFocus()) {
        first->setFocus();
    }
}

FormWindow::~FormWindow() = default;

void FormWindow::Follow()
{
    setWindowTitle(ToQt(m_form->Caption()));
    const QSize size = m_view->sizeHint();
    setFixedSize(size);
    m_view->setGeometry(QRect(QPoint(), size));
}

void FormWindow::Retire()
{
    m_following.End();
    m_view->Detach();
    m_form = nullptr;
    hide();
    deleteLater();
}

void FormWindow::reject()
{
    if (m_form != nullptr) {
        if (Button* cancel = m_form->CancelButton()) {
            IgnoreFailure([&] { cancel->Push(); });
        }
    }
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (m_form != nullptr && m_form->ControlBox()) {
        IgnoreFailure([&] { m_form->Unload(); });
    }
}

} // namespace quor
