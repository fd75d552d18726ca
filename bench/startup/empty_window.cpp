// The least that a program with a main window does: the peer of the editor's start.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1366, 768);
    window.show();
    return QApplication::exec();
}
