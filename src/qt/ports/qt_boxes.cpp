#include "qt/ports/qt_boxes.h"

#include "qt/ports/qt_text.h"

#include <QApplication>
#include <QMessageBox>

namespace quor {

namespace {

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

// What closing the box without a choice stands for.
QMessageBox::StandardButton EscapeOf(BoxButtons buttons)
{
    switch (buttons) {
    case BoxButtons::YesNo:
        return QMessageBox::No;
    case BoxButtons::YesNoCancel:
        return QMessageBox::Cancel;
    case BoxButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

BoxAnswer AnswerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return BoxAnswer::Yes;
    case QMessageBox::No:
        return BoxAnswer::No;
    case QMessageBox::Cancel:
        return BoxAnswer::Cancel;
    default:
        return BoxAnswer::Ok;
    }
}

} // namespace

BoxAnswer QtBoxes::Show(const std::string& text, const std::string& title, BoxButtons buttons)
{
    QMessageBox box(QApplication::activeWindow());
    box.setIcon(buttons == BoxButtons::Ok ? QMessageBox::Information : QMessageBox::Question);
    box.setWindowTitle(ToQt(title.empty() ? appTitle : std::string_view(title)));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    box.setStandardButtons(ButtonsOf(buttons));
    box.setEscapeButton(EscapeOf(buttons));
    return AnswerOf(box.exec());
}

} // namespace quor
