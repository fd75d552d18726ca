#include "qt/ports/qt_common_dialog.h"

#include "qt/ports/font_picker.h"
#include "qt/ports/qt_text.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>

namespace quor {

void QtCommonDialog::ShowOpen()
{
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode((Flags & dialog_flags::fileMustExist) != 0 ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    FileName = PickFile(dialog);
}

void QtCommonDialog::ShowSave()
{
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(FirstSuffix(Filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (Flags & dialog_flags::overwritePrompt) == 0);
    FileName = PickFile(dialog);
}

// The path that the user settles on, or an empty text.
std::string QtCommonDialog::PickFile(QFileDialog& dialog)
{
    dialog.setNameFilters(NameFilters(Filter));
    if (!InitialDirectory.empty()) {
        dialog.setDirectory(ToQt(InitialDirectory));
    }
    if (!FileName.empty()) {
        dialog.selectFile(ToQt(FileName));
    }
    while (dialog.exec() == QDialog::Accepted) {
        const QString path = dialog.selectedFiles().value(0);
        if (!IsRefused(path)) {
            return FromQt(path);
        }
        QMessageBox box(QMessageBox::Warning, ToQt(appTitle),
                        QStringLiteral("%1\nThis file is read-only. Please choose another.").arg(path), QMessageBox::Ok,
                        QApplication::activeWindow());
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
    return {};
}

bool QtCommonDialog::IsRefused(const QString& path) const
{
    if ((Flags & dialog_flags::noReadOnlyReturn) == 0) {
        return false;
    }
    const QFileInfo file(path);
    return file.exists() ? !file.isWritable() : !QFileInfo(file.absolutePath()).isWritable();
}

void QtCommonDialog::ShowColor()
{
    const QColor picked = QColorDialog::getColor(ToQt(Resolve(Color)), QApplication::activeWindow());
    if (picked.isValid()) {
        Color = FromQt(picked);
    }
}

void QtCommonDialog::ShowFont()
{
    FontPicker picker(*this, QApplication::activeWindow());
    if (picker.exec() == QDialog::Accepted) {
        picker.TakeOver(*this);
    }
}

QStringList NameFilters(const std::string& filter)
{
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString label = parts[i];
        const qsizetype bracket = label.lastIndexOf(QLatin1String(" ("));
        if (bracket >= 0 && label.endsWith(QLatin1Char(')'))) {
            label.truncate(bracket);
        }
        QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
        patterns.replaceInStrings(QRegularExpression(QStringLiteral("^\\*\\.\\*$")), QStringLiteral("*"));
        filters.append(QStringLiteral("%1 (%2)").arg(label, patterns.join(QLatin1Char(' '))));
    }
    return filters;
}

QString FirstSuffix(const std::string& filter)
{
    const QString pattern = ToQt(filter).section(QLatin1Char('|'), 1, 1).section(QLatin1Char(';'), 0, 0);
    const QString suffix = pattern.section(QLatin1Char('.'), 1);
    return suffix.contains(QLatin1Char('*')) ? QString() : suffix;
}

} // namespace quor
