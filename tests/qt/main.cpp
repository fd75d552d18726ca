// Runs the tests on a screen in memory, away from the user's own settings.

#include "qt/theme/theme.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    const QByteArray path = home.path().toLocal8Bit();
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(name, path);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    quor::Theme theme;
    theme.Apply(application);
    return RUN_ALL_TESTS();
}
