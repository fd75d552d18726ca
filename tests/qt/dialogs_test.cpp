// Dialogs and windows of the ports: what goes into them, and what comes back.

#include "base/values.h"
#include "login/frm_log_on.h"
#include "qt/forms/form_window.h"
#include "qt/ports/help_window.h"
#include "qt/ports/qt_common_dialog.h"
#include "qt/ports/qt_help.h"
#include "qt/ports/qt_system_info.h"
#include "tests/qt/test.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTextBrowser>

namespace {

using Act = std::function<void(QWidget& dialog)>;

// What is done in the dialog that comes next.
void Next(const Act& act)
{
    QTimer::singleShot(0, qApp, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(*dialog);
    });
}

void PressEnter(QWidget& dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Return);
}

struct TheFontDialog : testing::Test {
    QtCommonDialog dialog;

    TheFontDialog()
    {
        dialog.FontName = "MS Sans Serif";
        dialog.FontSize = 8.25;
        dialog.FontUnderline = true;
        dialog.Flags = dialog_flags::screenFonts | dialog_flags::fontEffects;
        dialog.Color = colors::buttonText;
    }

    void Show(const Act& act)
    {
        Next(act);
        dialog.ShowFont();
    }
};

TEST_F(TheFontDialog, GivesBackWhatNobodyTouched)
{
    const struct {
        const char* face;
        double size;
    } rows[] = {{"MS Sans Serif", 8.25},  {"Arial", 9.75},          {"arial", 12},
                {"No Such Face", 0.0001}, {"Liberation Sans", 1e6}, {"", 0}};
    for (const auto& row : rows) {
        for (const bool isOn : {false, true}) {
            dialog.FontName = row.face;
            dialog.FontSize = row.size;
            dialog.FontBold = dialog.FontUnderline = isOn;
            dialog.FontItalic = dialog.FontStrikethru = !isOn;
            Show(PressEnter);
            EXPECT_EQ(dialog.FontName, row.face);
            EXPECT_EQ(dialog.FontSize, row.size) << row.face;
            EXPECT_TRUE(dialog.FontBold == isOn && dialog.FontUnderline == isOn) << row.face;
            EXPECT_TRUE(dialog.FontItalic != isOn && dialog.FontStrikethru != isOn) << row.face;
            EXPECT_EQ(dialog.Color, colors::buttonText);
        }
    }
}

TEST_F(TheFontDialog, TakesWhatTheUserPicksAndNothingWhenCancelled)
{
    const auto pick = [](QWidget& shown) {
        auto* faces = shown.findChild<QListWidget*>("faces");
        faces->setCurrentItem(faces->findItems("Arial", Qt::MatchExactly).value(0));
        shown.findChild<QComboBox*>("sizes")->setCurrentText("9,75");
        for (const char* box : {"bold", "italic", "underline", "strikethrough"}) {
            shown.findChild<QCheckBox*>(box)->click();
        }
        Next([](QWidget& color) {
            dynamic_cast<QColorDialog&>(color).setCurrentColor(QColor(1, 2, 3));
            PressEnter(color);
        });
        shown.findChild<QPushButton*>("color")->click();
    };
    Show([&](QWidget& shown) {
        pick(shown);
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    EXPECT_EQ(dialog.FontName, "MS Sans Serif");
    EXPECT_EQ(dialog.FontSize, 8.25);
    EXPECT_FALSE(dialog.FontBold);
    EXPECT_EQ(dialog.Color, colors::buttonText);
    Show([&](QWidget& shown) {
        pick(shown);
        PressEnter(shown);
    });
    EXPECT_EQ(dialog.FontName, "Arial");
    EXPECT_EQ(dialog.FontSize, 9.75);
    EXPECT_TRUE(dialog.FontBold && dialog.FontItalic && dialog.FontStrikethru && !dialog.FontUnderline);
    EXPECT_EQ(dialog.Color, (Color{0x030201}));
}

TEST_F(TheFontDialog, OffersEffectsWhereTheFlagsAskForThemAndTakesNoSizeThatIsNone)
{
    dialog.Flags = dialog_flags::screenFonts;
    Show([](QWidget& shown) {
        EXPECT_FALSE(shown.findChild<QCheckBox*>("underline")->isVisible());
        EXPECT_EQ(shown.findChild<QPushButton*>("color"), nullptr);
        auto* sizes = shown.findChild<QComboBox*>("sizes");
        for (const char* text : {"", "large", "0", "-8", "nan", "1e9"}) {
            sizes->setCurrentText(text);
            PressEnter(shown);
            EXPECT_TRUE(shown.isVisible()) << text;
        }
        sizes->setCurrentText("750");
        PressEnter(shown);
    });
    EXPECT_EQ(dialog.FontSize, 750);
    EXPECT_TRUE(dialog.FontUnderline) << "what isn't offered stays";
}

TEST(TheColorDialog, GivesBackTheColorThatItShows)
{
    QtCommonDialog dialog;
    dialog.Color = {0x563412};
    Next(PressEnter);
    dialog.ShowColor();
    EXPECT_EQ(dialog.Color, (Color{0x563412}));
    dialog.Color = colors::buttonFace;
    Next([](QWidget& shown) {
        dynamic_cast<QColorDialog&>(shown).setCurrentColor(QColor(1, 2, 3));
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    dialog.ShowColor();
    EXPECT_EQ(dialog.Color, colors::buttonFace) << "cancelled";
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
    WriteFile(folder.filePath("index.html"), "<h1>Contents</h1>");
    QtHelp help;
    {
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        help.ShowContents(folder.filePath("index.html").toStdString());
        HelpWindow* window = ShownHelp();
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->parentWidget(), &dialog);
        EXPECT_TRUE(window->findChild<QTextBrowser*>()->toPlainText().contains("Contents"));
        dialog.hide();
    }
    HelpWindow* window = ShownHelp();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->parentWidget(), nullptr);
    QTest::keyClick(window, Qt::Key_Escape);
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
