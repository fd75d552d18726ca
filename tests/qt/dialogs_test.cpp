#include "editor/frm_customize.h"
#include "editor/tools.h"
#include "login/frm_log_on.h"
#include "qt/forms/form_view.h"
#include "qt/forms/form_window.h"
#include "qt/ports/help_window.h"
#include "qt/ports/qt_help.h"
#include "qt/ports/qt_system_info.h"
#include "tests/qt/test.h"

#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>

namespace {

void Press(QWidget& widget, int key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

HelpWindow* ShownHelp()
{
    for (QWidget* window : QApplication::allWidgets()) {
        if (auto* help = dynamic_cast<HelpWindow*>(window); help != nullptr && help->isVisible()) {
            return help;
        }
    }
    return nullptr;
}

TEST(TheCustomizeDialog, IsWorkedByTheKeysOfItsLists)
{
    const std::unique_ptr<Bars> bars = MakeEditorBars();
    frmCustomize form(*bars, LayoutOf(*bars));
    FormView view(form);
    view.resize(view.sizeHint());
    auto* tools = view.findChild<QListWidget*>("lstTools");
    auto* toolbar = view.findChild<QListWidget*>("lstToolbar");
    ASSERT_TRUE(tools != nullptr && toolbar != nullptr);
    EXPECT_EQ(view.FirstFocus(), tools);
    EXPECT_EQ(tools->accessibleName(), "Available tools:");
    EXPECT_EQ(toolbar->accessibleName(), "On the toolbar:");
    const int before = toolbar->count();

    Press(*tools, Qt::Key_Down);
    Press(*tools, Qt::Key_Down);
    EXPECT_EQ(form.lstTools.Index(), tools->currentRow());
    const QString taken = tools->currentItem()->text();
    Press(*tools, Qt::Key_Return);
    EXPECT_EQ(toolbar->count(), before + 1);
    EXPECT_EQ(toolbar->currentItem()->text(), taken);
    Press(*toolbar, Qt::Key_Up);
    Press(*toolbar, Qt::Key_Return);
    EXPECT_EQ(toolbar->count(), before);
    EXPECT_EQ(form.lstToolbar.Index(), toolbar->currentRow());
}

TEST(TheLogonDialog, GoesOnInThePasswordWhereTheMouseConfirmedAWrongOne)
{
    FakeTimers timers;
    int failures = 0;
    std::string tried;
    frmLogOn form(timers, failures, [&](const std::string& name, const std::string& password) {
        tried += name + ':' + password + ' ';
        return false;
    });
    FormWindow window(form, nullptr);
    window.show();
    window.activateWindow();
    auto* ok = window.findChild<QPushButton*>("cmdOK");
    QTest::keyClicks(window.focusWidget(), "Ada");
    QTest::keyClicks(window.findChild<QWidget*>("txtPassword"), "wrong");
    ok->setFocus(); // as the mouse does
    QTest::mouseClick(ok, Qt::LeftButton);
    timers.Advance(frmLogOn::PauseAfter(1));
    QTest::keyClicks(window.focusWidget(), "secret");
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(tried, "Ada:wrong Ada:secret ");
}

TEST(TheHelpWindow, StandsAboveADialogAndOutlivesIt)
{
    const QTemporaryDir folder;
    QFile page(folder.filePath("index.html"));
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<h1>Contents</h1>");
    page.close();
    QtHelp help;
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        help.ShowContents(page.fileName().toStdString());
        HelpWindow* window = ShownHelp();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->parentWidget(), &dialog);
        EXPECT_TRUE(window->findChild<QTextBrowser*>()->toPlainText().contains("Contents"));
        dialog.hide();
    }
    HelpWindow* window = ShownHelp();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->parentWidget(), nullptr);
    Press(*window, Qt::Key_Escape);
    EXPECT_EQ(ShownHelp(), nullptr);
}

TEST(TheSystemInformation, HasAWordForEachFact)
{
    const std::vector<SystemFact> facts = QtSystemInfo().Facts();
    EXPECT_GE(facts.size(), 7U);
    for (const SystemFact& fact : facts) {
        EXPECT_FALSE(fact.label.empty() || fact.value.empty()) << fact.label;
    }
}

} // namespace
