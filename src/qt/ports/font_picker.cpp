#include "qt/ports/font_picker.h"

#include "qt/ports/qt_text.h"
#include "qt/ports/view_font.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPixmap>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

// Points. A view draws no size beyond them.
constexpr double leastSize = 1;
constexpr double mostSize = 750;
// With those that fonts of screen pixels come in.
constexpr double usualSizes[] = {6,  7,     8,  8.25, 9,  9.75, 10, 11, 12, 13.5, 14,
                                 15, 15.75, 16, 18,   20, 22,   24, 28, 36, 48,   72};

QString SizeText(double points)
{
    return QLocale::c().toString(points, 'f', QLocale::FloatingPointShortest);
}

QLabel* HeadingOf(QWidget& field, const QString& text)
{
    auto* label = new QLabel(text);
    label->setBuddy(&field);
    field.setAccessibleName(QString(text).remove(QLatin1Char('&')));
    return label;
}

} // namespace

FontPicker::FontPicker(const CommonDialog& given, QWidget* parent)
    : QDialog(parent), m_givenFace(given.FontName), m_givenSize(given.FontSize), m_color(ToQt(Resolve(given.Color)))
{
    setObjectName(QStringLiteral("font"));
    setWindowTitle(QStringLiteral("Font"));
    auto* grid = new QGridLayout(this);
    AddFaces(given, *grid);
    AddSizes(given, *grid);
    AddStyles(given, *grid);
    AddButtons(*grid);
    Follow();
}

void FontPicker::TakeOver(CommonDialog& dialog) const
{
    dialog.FontName = Face();
    dialog.FontSize = SizeInPoints().value_or(m_givenSize);
    dialog.FontBold = m_bold->isChecked();
    dialog.FontItalic = m_italic->isChecked();
    dialog.FontUnderline = m_underline->isChecked();
    dialog.FontStrikethru = m_strikethru->isChecked();
    if (m_colorIsPicked) {
        dialog.Color = FromQt(m_color);
    }
}

void FontPicker::AddFaces(const CommonDialog& given, QGridLayout& grid)
{
    const QString face = ToQt(given.FontName);
    QStringList offered = ViewFaces();
    if (!face.isEmpty() && !offered.contains(face, Qt::CaseInsensitive)) {
        offered.prepend(face);
    }
    m_faces = new QListWidget;
    m_faces->setObjectName(QStringLiteral("faces"));
    m_faces->addItems(offered);
    m_givenItem = m_faces->findItems(face, Qt::MatchFixedString).value(0);
    if (m_givenItem != nullptr) {
        m_faces->setCurrentItem(m_givenItem);
        m_faces->scrollToItem(m_givenItem, QAbstractItemView::PositionAtCenter);
    }
    grid.addWidget(HeadingOf(*m_faces, QStringLiteral("&Font:")), 0, 0);
    grid.addWidget(m_faces, 1, 0, 7, 1);
    connect(m_faces, &QListWidget::itemSelectionChanged, this, [this] { Follow(); });
    connect(m_faces, &QListWidget::itemDoubleClicked, this, [this] { m_ok->click(); });
}

void FontPicker::AddSizes(const CommonDialog& given, QGridLayout& grid)
{
    m_sizes = new QComboBox;
    m_sizes->setObjectName(QStringLiteral("sizes"));
    m_sizes->setEditable(true);
    m_sizes->setInsertPolicy(QComboBox::NoInsert);
    for (const double size : usualSizes) {
        m_sizes->addItem(SizeText(size));
    }
    m_givenSizeText = SizeText(given.FontSize);
    m_sizes->setCurrentText(m_givenSizeText);
    grid.addWidget(HeadingOf(*m_sizes, QStringLiteral("&Size:")), 0, 1);
    grid.addWidget(m_sizes, 1, 1);
    connect(m_sizes, &QComboBox::currentTextChanged, this, [this] { Follow(); });
}

void FontPicker::AddStyles(const CommonDialog& given, QGridLayout& grid)
{
    m_bold = AddBox("bold", QStringLiteral("&Bold"), given.FontBold, grid, 2);
    m_italic = AddBox("italic", QStringLiteral("&Italic"), given.FontItalic, grid, 3);
    m_underline = AddBox("underline", QStringLiteral("&Underline"), given.FontUnderline, grid, 4);
    m_strikethru = AddBox("strikethrough", QStringLiteral("Stri&kethrough"), given.FontStrikethru, grid, 5);
    const bool hasEffects = (given.Flags & dialog_flags::fontEffects) != 0;
    m_underline->setVisible(hasEffects);
    m_strikethru->setVisible(hasEffects);
    if (hasEffects) {
        AddColor(grid);
    }
}

QCheckBox* FontPicker::AddBox(const char* name, const QString& text, bool isOn, QGridLayout& grid, int row)
{
    auto* box = new QCheckBox(text);
    box->setObjectName(QString::fromLatin1(name));
    box->setChecked(isOn);
    grid.addWidget(box, row, 1);
    connect(box, &QCheckBox::toggled, this, [this] { Follow(); });
    return box;
}

void FontPicker::AddColor(QGridLayout& grid)
{
    m_swatch = new QPushButton(QStringLiteral("&Color..."));
    m_swatch->setObjectName(QStringLiteral("color"));
    m_swatch->setAutoDefault(false);
    grid.addWidget(m_swatch, 6, 1);
    connect(m_swatch, &QPushButton::clicked, this, [this] { PickColor(); });
}

void FontPicker::AddButtons(QGridLayout& grid)
{
    constexpr int sampleHeight = 72; // pixels
    m_sample = new QLabel(QStringLiteral("AaBbYyZz 123"));
    m_sample->setObjectName(QStringLiteral("sample"));
    m_sample->setFrameShape(QFrame::StyledPanel);
    m_sample->setAlignment(Qt::AlignCenter);
    m_sample->setFixedHeight(sampleHeight);
    m_sample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setDefault(true);
    grid.addWidget(m_sample, 8, 0, 1, 2);
    grid.addWidget(buttons, 9, 0, 1, 2);
    grid.setRowStretch(7, 1);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void FontPicker::PickColor()
{
    const QColor picked = QColorDialog::getColor(m_color, this);
    if (picked.isValid()) {
        m_color = picked;
        m_colorIsPicked = true;
        Follow();
    }
}

// The sample, the swatch and the OK button say what the fields do.
void FontPicker::Follow()
{
    if (m_ok == nullptr) {
        return;
    }
    const std::optional<double> size = SizeInPoints();
    m_ok->setEnabled(size.has_value());
    Font font;
    font.Name = Face();
    font.Size = std::llround(std::clamp(size.value_or(leastSize), leastSize, mostSize) * 10'000);
    font.SetBold(m_bold->isChecked());
    font.Italic = m_italic->isChecked();
    font.Underline = m_underline->isChecked();
    font.Strikethrough = m_strikethru->isChecked();
    m_sample->setFont(ViewFont(font, 1, *m_sample));
    if (m_swatch != nullptr) {
        QPixmap swatch(16, 16);
        swatch.fill(m_color);
        m_swatch->setIcon(swatch);
    }
}

std::string FontPicker::Face() const
{
    const QList<QListWidgetItem*> chosen = m_faces->selectedItems();
    return chosen.isEmpty() || chosen.first() == m_givenItem ? m_givenFace : FromQt(chosen.first()->text());
}

std::optional<double> FontPicker::SizeInPoints() const
{
    QString text = m_sizes->currentText().trimmed();
    if (text == m_givenSizeText) {
        return m_givenSize;
    }
    bool isNumber = false;
    const double size = QLocale::c().toDouble(text.replace(QLatin1Char(','), QLatin1Char('.')), &isNumber);
    const bool isSize = isNumber && size >= leastSize && size <= mostSize;
    return isSize ? std::optional(size) : std::nullopt;
}

} // namespace quor
