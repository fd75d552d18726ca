// The end of the session, by whichever way the program hears of it.

#include "apps/editor/session_end.h"
#include "tests/qt/desk.h"
#include "tests/qt/test.h"

#include <csignal>

namespace {

TEST(TheEndOfTheSession, AsksNothingWhetherItIsAQuitEventOrASignal)
{
    for (const bool isSignal : {false, true}) {
        EditorDesk desk;
        desk.DragTool(3, {100, 100});
        int ends = 0;
        const SessionEnd sessionEnd([&] {
            ++ends;
            EXPECT_TRUE(desk.Main().Close(CloseReason::System));
            QCoreApplication::exit(0);
        });
        QTimer::singleShot(0, qApp, [isSignal] {
            if (isSignal) {
                std::raise(SIGTERM);
            } else {
                QCoreApplication::quit();
            }
        });
        QApplication::exec();
        EXPECT_TRUE(desk.HasEnded());
        EXPECT_EQ(ends, 1);
        EXPECT_EQ(desk.Met(), QStringList());
    }
}

TEST(TheEndOfTheSession, ComesAtOnceAtTheSecondSignal)
{
    const auto signalTwice = [] {
        const SessionEnd sessionEnd([] {});
        std::raise(SIGTERM);
        std::raise(SIGTERM);
    };
    EXPECT_EXIT(signalTwice(), ::testing::KilledBySignal(SIGTERM), "");
}

} // namespace
