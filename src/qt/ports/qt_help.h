#pragma once
// Help in a window of the program's own.

#include "platform/help.h"

#include <QPointer>

namespace quor {

class HelpWindow;

class QtHelp final : public Help {
public:
    QtHelp();
    ~QtHelp() override;

    // Failures: 53 file not found.
    void ShowContents(const std::string& path) override;

private:
    QPointer<HelpWindow> m_window;
};

} // namespace quor
