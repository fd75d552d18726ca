#include "qt/ports/qt_screen.h"

#include <QCursor>
#include <QGuiApplication>

namespace quor {

void QtScreen::SetMousePointer(MousePointer pointer)
{
    const bool overrides = pointer == MousePointer::Hourglass;
    if (overrides == m_isOverridden) {
        return;
    }
    if (overrides) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QGuiApplication::restoreOverrideCursor();
    }
    m_isOverridden = overrides;
}

} // namespace quor
