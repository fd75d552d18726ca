#include "qt/ports/qt_settings.h"

#include "base/failure.h"
#include "posix/user_folders.h"
#include "qt/ports/qt_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
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
    return ToQt(DataFolder());
}

QString FirstHelpFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/quor-view-editor/help/index.html"));
}

// To open a pipe could take for ever.
bool IsFileOrNone(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() || !info.exists();
}

} // namespace

QtSettings::QtSettings(const QString& path) : m_path(path)
{
    if (IsFileOrNone(path)) {
        m_settings.emplace(path, QSettings::IniFormat).allKeys(); // which parses it, and so finds its faults
    }
}

std::string QtSettings::Trouble() const
{
    if (!m_settings || m_settings->status() == QSettings::AccessError) {
        return "The settings of the file \"" + FromQt(m_path) +
               "\" cannot be used.\n\nThe first values are used instead.";
    }
    if (m_settings->status() == QSettings::FormatError) {
        return "The file \"" + FromQt(m_path) + "\" is damaged. Not all settings in it can be used.";
    }
    return {};
}

QVariant QtSettings::Value(const QString& key, const QVariant& first) const
{
    return m_settings ? m_settings->value(key, first) : first;
}

void QtSettings::Keep(const QString& key, const QVariant& value)
{
    bool isKept = false;
    if (m_settings && IsFileOrNone(m_path)) {
        // One of its own, since a failure stays with the object.
        QSettings writer(m_path, QSettings::IniFormat);
        const QVariant before = writer.value(key);
        writer.setValue(key, value);
        writer.sync();
        isKept = writer.status() == QSettings::NoError;
        if (!isKept && before.isValid()) {
            writer.setValue(key, before);
        } else if (!isKept) {
            writer.remove(key);
        }
    }
    if (!isKept) {
        throw Failure(failures::pathFileAccess, "The settings cannot be written to \"" + FromQt(m_path) + "\".");
    }
}

QString QtSettings::DefaultPath()
{
    return ToQt(ConfigFolder()) + QStringLiteral("/view-editor.ini");
}

std::int32_t QtSettings::GridSize()
{
    bool isNumber = false;
    const int size = Value(gridSizeKey, firstGridSize).toInt(&isNumber);
    return isNumber && size > 0 && size <= INT16_MAX ? size : firstGridSize;
}

void QtSettings::SetGridSize(std::int32_t pixels)
{
    Keep(gridSizeKey, pixels);
}

bool QtSettings::ShowGrid()
{
    return Value(gridShownKey, true).toBool();
}

void QtSettings::SetShowGrid(bool show)
{
    Keep(gridShownKey, show);
}

bool QtSettings::SnapToGrid()
{
    return Value(gridSnapKey, true).toBool();
}

void QtSettings::SetSnapToGrid(bool snap)
{
    Keep(gridSnapKey, snap);
}

std::string QtSettings::ViewsDirectory()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return FromQt(Value(viewsKey, documents).toString());
}

std::string QtSettings::ToolbarDirectory()
{
    const QString directory = Value(toolbarsKey, FirstToolbarDirectory()).toString();
    QDir().mkpath(directory);
    return FromQt(directory);
}

std::string QtSettings::HelpFile()
{
    return FromQt(Value(helpKey, FirstHelpFile()).toString());
}

} // namespace quor
