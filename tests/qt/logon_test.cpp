// A user of the machine logs on at the dialog, and the main window opens.

#include "apps/editor/program.h"
#include "apps/login/sodium_hasher.h"
#include "editor/main_form.h"
#include "login/user_list.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using namespace quor;

struct TheLogonAtTheWindow : ::testing::Test {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quor";

    void Write(const std::string& users) const
    {
        QDir().mkpath(folder);
        QFile file(folder + "/users");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(users.data(), static_cast<qint64>(users.size()));
    }
    ~TheLogonAtTheWindow() override { QFile::remove(folder + "/users"); }
};

TEST_F(TheLogonAtTheWindow, AsksForTheUserAndShowsNoPassword)
{
    Write(WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}}));
    bool isMet = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr) {
            return;
        }
        watch.stop();
        isMet = true;
        auto* user = dialog->findChild<QLineEdit*>("txtUser");
        auto* password = dialog->findChild<QLineEdit*>("txtPassword");
        ASSERT_TRUE(user != nullptr && password != nullptr);
        QTest::keyClicks(user, "Ada");
        QTest::keyClicks(password, "secret");
        EXPECT_FALSE(password->displayText().contains("secret"));
        QTest::keyClick(password, Qt::Key_Return);
    });
    watch.start(5);
    Program program("");
    program.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.Window() != nullptr; }));
    EXPECT_TRUE(isMet);
    program.EndSession();
}

TEST_F(TheLogonAtTheWindow, GoesOnInThePasswordWhereTheMouseConfirmedAWrongOne)
{
    Write(WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}}));
    int step = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || step == 2) {
            return;
        }
        auto* ok = dialog->findChild<QPushButton*>("cmdOK");
        if (!ok->isEnabled()) {
            return; // the pause
        }
        const bool isRight = step++ == 1;
        if (!isRight) {
            QTest::keyClicks(dialog->focusWidget(), "Ada");
        }
        QTest::keyClicks(isRight ? dialog->focusWidget() : dialog->findChild<QLineEdit*>("txtPassword"),
                         isRight ? "secret" : "wrong");
        if (isRight) {
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        } else {
            ok->setFocus();
            QTest::mouseClick(ok, Qt::LeftButton);
        }
    });
    watch.start(5);
    Program program("");
    program.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.Window() != nullptr || program.HasEnded(); }));
    EXPECT_NE(program.Window(), nullptr);
    program.EndSession();
}

// What is wrong with the user's files is nobody else's business.
TEST_F(TheLogonAtTheWindow, ComesAheadOfWhatIsToldAboutFiles)
{
    Write(WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}}));
    const QString settings = folder + "/view-editor.ini";
    QFile sites(folder + "/sites.json");
    ASSERT_TRUE(sites.open(QIODevice::WriteOnly));
    sites.write("none");
    sites.close();
    ASSERT_EQ(mkfifo(settings.toLocal8Bit().constData(), 0600), 0) << "opened, it would block";
    Program program("");
    QStringList met;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || met.size() == 3) {
            return;
        }
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        met.append(box == nullptr ? QString("logon") : box->text().section('\n', 0, 0));
        if (box == nullptr) {
            QTest::keyClicks(dialog->findChild<QLineEdit*>("txtUser"), "Ada");
            QTest::keyClicks(dialog->findChild<QLineEdit*>("txtPassword"), "secret");
        } else {
            EXPECT_TRUE(program.Window() != nullptr && program.Window()->isVisible());
        }
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    watch.start(5);
    program.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return met.size() == 3; }));
    EXPECT_EQ(met.value(0), "logon");
    EXPECT_TRUE(met.value(1).startsWith("The sites of the file ")) << met.value(1).toStdString();
    EXPECT_EQ(met.value(2), "The settings of the file \"" + settings + "\" cannot be used.");
    EXPECT_EQ(program.MainForm()->GridSize(), 10);
    program.EndSession();
    QFile::remove(settings);
    sites.remove();
}

TEST_F(TheLogonAtTheWindow, EndsWhenTheUserGivesUp)
{
    Write(WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}}));
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            watch.stop();
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    watch.start(5);
    Program program("");
    program.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.HasEnded(); }));
    EXPECT_EQ(program.Window(), nullptr);
}

} // namespace
