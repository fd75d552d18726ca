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

// What is wrong with the user's files is nobody else's business.
TEST(TheLogonAtTheWindow, ComesAheadOfWhatIsToldAboutFiles)
{
    QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quor");
    const QString settings = folder.filePath("view-editor.ini");
    folder.mkpath(".");
    WriteFile(folder.filePath("users"),
              QByteArray::fromStdString(WriteUsers({{"Ada", {15}, SodiumHasher().Hash("secret")}})));
    WriteFile(folder.filePath("sites.json"), "none");
    QFile::remove(settings); // of a test before this one
    ASSERT_EQ(mkfifo(settings.toLocal8Bit().constData(), 0600), 0) << "opened, it would block";
    Program program("");
    QStringList met;
    QTimer watch; // for dialogs
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr || met.size() == 3) {
            return;
        }
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        met.append(box == nullptr ? QString("logon") : box->text().section('\n', 0, 0));
        EXPECT_EQ(program.Window() != nullptr && program.Window()->isVisible(), box != nullptr);
        if (box == nullptr) {
            QTest::keyClicks(dialog->findChild<QLineEdit*>("txtUser"), "Ada");
            auto* password = dialog->findChild<QLineEdit*>("txtPassword");
            QTest::keyClicks(password, "secret");
            EXPECT_FALSE(password->displayText().contains("secret"));
        }
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    watch.start(5);
    program.Start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return met.size() == 3; }));
    EXPECT_EQ(program.MainForm()->Grid().Size(), 10);
    program.EndSession();
    EXPECT_EQ(met.value(0), "logon");
    EXPECT_TRUE(met.value(1).startsWith("The sites of the file ")) << met.value(1).toStdString();
    EXPECT_EQ(met.value(2), "The settings of the file \"" + settings + "\" cannot be used.");
    EXPECT_TRUE(folder.removeRecursively());
}

} // namespace
