#include "qt/ports/qt_help.h"

#include "base/failure.h"
#include "qt/ports/help_window.h"
#include "qt/ports/qt_text.h"

#include <QFileInfo>

namespace quor {

QtHelp::QtHelp() = default;

QtHelp::~QtHelp()
{
    delete m_window;
}

void QtHelp::ShowContents(const std::string& path)
{
    const QString file = ToQt(path);
    if (!QFileInfo(file).isFile()) {
        throw Failure(failures::fileNotFound);
    }
    if (m_window == nullptr) {
        m_window = new HelpWindow;
    }
    m_window->ShowFile(file);
}

} // namespace quor
