#pragma once
// The signs of message boxes and reports: a disc with a mark.

#include <QIcon>

class QPainter;
class QRectF;

namespace quor {

struct ThemeColors;

enum class SignKind { Error, Warning, Question, Information };

void DrawSign(QPainter& painter, const QRectF& area, SignKind kind, const ThemeColors& colors);

// The colours outlive the icon.
QIcon SignIcon(SignKind kind, const ThemeColors& colors);

} // namespace quor
