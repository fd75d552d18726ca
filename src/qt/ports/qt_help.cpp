#include "qt/ports/qt_help.h"

#include "base/failure.h"
#include "qt/ports/qt_text.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace quor {

void QtHelp::ShowContents(const std::string& path)
{
    const QString file = ToQt(path);
    if (!QFileInfo(file).isFile()) {
        throw Failure(failures::fileNotFound);
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        throw Failure(failures::invalidCall, "No program opens " + path);
    }
}

} // namespace quor
