#pragma once
// The dialog for a font of a view: the faces that views name beside those that are installed, and sizes in parts of a
// point. What the user doesn't touch stays as it was given, even where the dialog could not have offered it.

#include "platform/common_dialog.h"

#include <QColor>
#include <QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace quor {

class FontPicker final : public QDialog {
public:
    // Begins with the font of the given dialog; its flags say whether effects and colour are offered.
    FontPicker(const CommonDialog& given, QWidget* parent);

    // Writes what the user has changed, and nothing else.
    void TakeOver(CommonDialog& dialog) const;

private:
    void AddFaces(const CommonDialog& given, QGridLayout& grid);
    void AddSizes(const CommonDialog& given, QGridLayout& grid);
    void AddStyles(const CommonDialog& given, QGridLayout& grid);
    QCheckBox* AddBox(const char* name, const QString& text, bool isOn, QGridLayout& grid, int row);
    void AddColor(QGridLayout& grid);
    void AddButtons(QGridLayout& grid);
    void PickColor();
    void Follow();
    std::string Face() const;
    // As given while its text is; none where the text is no size.
    std::optional<double> SizeInPoints() const;

    const std::string m_givenFace;
    const double m_givenSize;
    QColor m_color;
    bool m_colorIsPicked = false;
    QListWidgetItem* m_givenItem = nullptr; // null if none was given
    QString m_givenSizeText;
    QListWidget* m_faces = nullptr;
    QComboBox* m_sizes = nullptr;
    QCheckBox* m_bold = nullptr;
    QCheckBox* m_italic = nullptr;
    QCheckBox* m_underline = nullptr;
    QCheckBox* m_strikethru = nullptr;
    QPushButton* m_swatch = nullptr; // null without effects
    QLabel* m_sample = nullptr;
    QPushButton* m_ok = nullptr;
};

} // namespace quor
