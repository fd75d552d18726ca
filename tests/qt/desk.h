#pragma once
// A user at the real window: moves the mouse, types, and answers dialogs.

#include "apps/editor/program.h"
#include "editor/main_form.h"
#include "qt/window/canvas_view.h"
#include "qt/window/main_window.h"

#include <QTemporaryDir>
#include <QTimer>

#include <functional>
#include <ostream>

class QAction;
class QWidget;

namespace quor {

class EditorDesk {
public:
    // In a folder of its own, which is the current one. The window is shown.
    EditorDesk();
    ~EditorDesk();

    frmMain& Main() { return *m_program.MainForm(); }
    MainWindow& Window() { return *m_program.Window(); }
    bool HasEnded() const { return m_program.HasEnded(); }
    QString PathOf(const char* name) const { return m_folder.filePath(name); }

    // Pixels of the canvas view.
    void DragTool(int index, const QPoint& to);
    void Drag(const QPoint& from, const QPoint& to, bool gives = false);
    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton);
    // From the middle of a handle.
    void DragHandle(std::size_t handle, const QPoint& by);

    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Choose(const char* tool); // from a menu

    // What is done with the next dialogs, in this order. They are known when the event loop runs.
    void Meet(std::function<void(QWidget& dialog)> answer);
    void MeetAndCancel();
    void MeetAndType(const QString& path);
    void MeetAndPush(const QString& button);
    // The dialogs that were met, each by its title and text.
    QStringList Met();

    // Lets the program do what it has to, until nothing is left for some milliseconds.
    void Settle();

    // Each element of the view with its place, from back to front.
    QStringList Elements();

    // The tools on the toolbar by name, separators as "|".
    QStringList Toolbar();

private:
    QWidget& Canvas() { return *Window().Canvas().viewport(); }
    void MeetNext();

    struct Home {
        explicit Home(const QString& path);
        ~Home();
        QString before;
    };

    QTemporaryDir m_folder;
    Home m_home;
    std::vector<std::function<void(QWidget&)>> m_answers;
    QStringList m_met;
    QTimer m_watch; // for dialogs
    Program m_program;
};

} // namespace quor

// For messages of failed tests.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}
