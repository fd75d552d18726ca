#include "qt/ports/qt_clipboard.h"

#include "qt/ports/qt_text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace quor {

void QtClipboard::Clear()
{
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(const std::string& text)
{
    QGuiApplication::clipboard()->setText(ToQt(text));
}

} // namespace quor
