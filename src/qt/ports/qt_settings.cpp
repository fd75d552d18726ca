#include "qt/ports/qt_settings.h"

#include "qt/ports/qt_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace quor {

namespace {

constexpr int firstGridSize = 10; // pixels

const QString gridSizeKey = QStringLiteral("grid/size");
const QString gridShownKey = QStringLiteral("grid/shown");
const QString gridSnapKey = QStringLiteral("grid/snap");
const QString viewsKey = QStringLiteral("directories/views");
const QString toolbarsKey = QStringLiteral("directories/toolbars");
const QString helpKey = QStringLiteral("help/file");

QString FirstToolbarDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quor");
}

QString FirstHelpFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/quor-view-editor/help/index.html"));
}

} // namespace

QtSettings::QtSettings(const QString& path) : m_settings(path, QSettings::IniFormat) {}

QString QtSettings::DefaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/quor/view-editor.ini");
}

std::int32_t QtSettings::GridSize()
{
    bool isNumber = false;
    const int size = m_settings.value(gridSizeKey, firstGridSize).toInt(&isNumber);
    return isNumber && size > 0 ? size : firstGridSize;
}

void QtSettings::SetGridSize(std::int32_t pixels)
{
    m_settings.setValue(gridSizeKey, pixels);
}

bool QtSettings::ShowGrid()
{
    return m_settings.value(gridShownKey, true).toBool();
}

void QtSettings::SetShowGrid(bool show)
{
    m_settings.setValue(gridShownKey, show);
}

bool QtSettings::SnapToGrid()
{
    return m_settings.value(gridSnapKey, true).toBool();
}

void QtSettings::SetSnapToGrid(bool snap)
{
    m_settings.setValue(gridSnapKey, snap);
}

std::string QtSettings::ViewsDirectory()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return FromQt(m_settings.value(viewsKey, documents).toString());
}

std::string QtSettings::ToolbarDirectory()
{
    const QString directory = m_settings.value(toolbarsKey, FirstToolbarDirectory()).toString();
    QDir().mkpath(directory);
    return FromQt(directory);
}

std::string QtSettings::HelpFile()
{
    return FromQt(m_settings.value(helpKey, FirstHelpFile()).toString());
}

} // namespace quor
