#pragma once
// The desktop's dialogs for files, colours and fonts.

#include "platform/common_dialog.h"

#include <QStringList>

class QFileDialog;

namespace quor {

class QtCommonDialog final : public CommonDialog {
public:
    void ShowOpen() override;
    void ShowSave() override;
    void ShowColor() override;
    void ShowFont() override;

private:
    std::string PickFile(QFileDialog& dialog);
    bool IsRefused(const QString& path) const;
};

// "Text (*.a)|*.a;*.b" as the toolkit writes it: "Text (*.a *.b)". "*.*" means all files, those without a dot too.
QStringList NameFilters(const std::string& filter);

// The suffix of the filter's first pattern, without its dot; empty if it has none.
QString FirstSuffix(const std::string& filter);

} // namespace quor
