#pragma once
// The main window with every port in memory, and its property panel.

#include "elements/led_round.h"
#include "forms/bars.h"
#include "qt/theme/theme.h"
#include "qt/window/main_window.h"
#include "tests/editor/editor_fixture.h"

#include <QApplication>
#include <QLineEdit>

#include <memory>
#include <string>

namespace quor {

inline std::string Text(const QString& text)
{
    return text.toStdString();
}

struct ThePanel : EditorFixture {
    Theme theme;
    std::unique_ptr<MainWindow> window;

    void SetUp() override
    {
        theme.Apply(*qApp);
        EditorFixture::SetUp();
        window = std::make_unique<MainWindow>(main);
        window->resize(1366, 768);
        window->show();
        window->activateWindow();
        Settle();
    }

    static void Settle() { QApplication::processEvents(); }

    template <class W = QWidget> W& Find(const char* name) const
    {
        W* found = window->findChild<W*>(name);
        if (found == nullptr) {
            throw Failure(failures::invalidCall, name);
        }
        return *found;
    }

    QWidget& Panel() const { return Find("bndObjProps"); }

    // The page with its tab in front.
    QWidget& Show(const char* band, const char* page) const
    {
        main.abViewEdit().BandOf("bndObjProps").SetCurrentChild(band);
        Settle();
        return Find(page);
    }
    QWidget& General() const { return Show("prpGeneral", "frmCVGeneral"); }
    QWidget& Lamp() const { return Show("ctlLEDRound", "frmCVLEDRound"); }

    QLineEdit& Take(const char* field) const
    {
        auto& edit = Find<QLineEdit>(field);
        edit.setFocus(Qt::TabFocusReason);
        edit.selectAll();
        return edit;
    }
};

} // namespace quor
