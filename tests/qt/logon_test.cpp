// A user of the machine logs on at the dialog, and the main window opens.

#include "apps/editor/program.h"
#include "apps/login/sodium_hasher.h"
#include "login/user_list.h"
#include "qt/window/main_window.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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
