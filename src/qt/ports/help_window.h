#pragma once
// The window in which the program shows its help.

#include <QWidget>

class QTextBrowser;

namespace quor {

class HelpWindow final : public QWidget {
public:
    HelpWindow();

    // Shows the file from its head, above a dialog that keeps the user from other windows.
    void ShowFile(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void StandAbove(QWidget* modal);

    QTextBrowser* m_browser;
};

} // namespace quor
