#include "qt/ports/help_window.h"

#include "base/values.h"
#include "qt/ports/qt_text.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QUrl>

namespace quor {

namespace {
constexpr QSize firstSize(720, 640); // pixels
constexpr qreal margin = 20;
} // namespace

HelpWindow::HelpWindow() : m_browser(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("help"));
    setWindowTitle(ToQt(std::string(appTitle) + " Help"));
    resize(firstSize);
    m_browser->setObjectName(QStringLiteral("contents"));
    m_browser->setAccessibleName(windowTitle());
    m_browser->setFrameShape(QFrame::NoFrame);
    m_browser->document()->setDocumentMargin(margin);
    m_browser->setOpenExternalLinks(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_browser);
}

void HelpWindow::ShowFile(const QString& path)
{
    m_browser->setSource(QUrl::fromLocalFile(path));
    m_browser->document()->setDocumentMargin(margin);
    StandAbove(QApplication::activeModalWidget());
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
}

// A modal dialog lets the user reach its own windows alone. The help outlives it.
void HelpWindow::StandAbove(QWidget* modal)
{
    if (parentWidget() != nullptr) {
        parentWidget()->removeEventFilter(this);
    }
    if (parentWidget() != modal) {
        const QRect place = geometry();
        setParent(modal, Qt::Window);
        setGeometry(place);
    }
    if (modal != nullptr) {
        modal->installEventFilter(this);
    }
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Hide) {
        const bool wasVisible = isVisible();
        StandAbove(nullptr);
        setVisible(wasVisible);
    }
    return QWidget::eventFilter(watched, event);
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace quor
