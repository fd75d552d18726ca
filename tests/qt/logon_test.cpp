// A user of the machine logs on at the dialog, and the main window opens.

#include "apps/editor/program.h"
#include "apps/login/sodium_hasher.h"
#include "editor/main_form.h"
#include "login/user_list.h"
#include "qt/window/main_window.h"
#include "tests/qt/test.h"

#include <QMessageBox>

#include <sys/stat.h>

namespace {

struct TheLogonAtTheWindow : testing::Test {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quor";
    Program* program = nullptr;

    TheLogonAtTheWindow() { Write("users", WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}})); }
    ~TheLogonAtTheWindow() override
    {
        for (const char* name : {"users", "sites.json", "view-editor.ini"}) {
            QFile::remove(folder + '/' + name);
        }
    }

    void Write(const char* name, const std::string& text) const
    {
        QDir().mkpath(folder);
        WriteFile(folder + '/' + name, QByteArray::fromStdString(text));
    }

    // The program from its start until `isOver`; `meet` sees every few milliseconds the dialog that stands.
    void Run(const std::function<void(QWidget& dialog)>& meet, const std::function<bool()>& isOver,
             const std::function<void()>& inspect)
    {
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog == nullptr || (program != nullptr && isOver())) {
                return;
            }
            EXPECT_NE(program, nullptr) << "a dialog ahead of the start";
            meet(*dialog);
        });
        watch.start(5);
        Program started("");
        program = &started;
        started.Start();
        EXPECT_TRUE(QTest::qWaitFor(isOver));
        inspect();
        started.EndSession();
    }
};

// What is wrong with the user's files is nobody else's business.
TEST_F(TheLogonAtTheWindow, ComesAheadOfWhatIsToldAboutFiles)
{
    const QString settings = folder + "/view-editor.ini";
    Write("sites.json", "none");
    QFile::remove(settings); // of a test before this one
    ASSERT_EQ(mkfifo(settings.toLocal8Bit().constData(), 0600), 0) << "opened, it would block";
    QStringList met;
    const auto meet = [&](QWidget& dialog) {
        const auto* box = qobject_cast<QMessageBox*>(&dialog);
        met.append(box == nullptr ? QString("logon") : box->text().section('\n', 0, 0));
        if (box == nullptr) {
            QTest::keyClicks(dialog.findChild<QLineEdit*>("txtUser"), "Ada");
            auto* password = dialog.findChild<QLineEdit*>("txtPassword");
            QTest::keyClicks(password, "secret");
            EXPECT_FALSE(password->displayText().contains("secret"));
        } else {
            EXPECT_TRUE(program != nullptr && program->Window() != nullptr && program->Window()->isVisible());
        }
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    Run(
        meet, [&] { return met.size() == 3; }, [&] { EXPECT_EQ(program->MainForm()->Grid().Size(), 10); });
    EXPECT_EQ(met.value(0), "logon");
    EXPECT_TRUE(met.value(1).startsWith("The sites of the file ")) << met.value(1).toStdString();
    EXPECT_EQ(met.value(2), "The settings of the file \"" + settings + "\" cannot be used.");
}

TEST_F(TheLogonAtTheWindow, EndsWhenTheUserGivesUp)
{
    Run([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, [&] { return program->HasEnded(); },
        [&] { EXPECT_EQ(program->Window(), nullptr); });
}

} // namespace
