#include "tests/test.h"

namespace {

TEST(TimersOfTests, FireInOrderOfTheirTimeThenOfTheirMaking)
{
    FakeTimers timers;
    std::string fired;
    const auto first = timers.Make();
    const auto second = timers.Make();
    const auto third = timers.Make();
    const Subscription one = first->Fired.Subscribe([&] { fired += '1'; });
    const Subscription two = second->Fired.Subscribe([&] {
        fired += '2';
        second->SetEnabled(false);
        third->SetInterval(5);
        third->SetEnabled(true);
    });
    const Subscription three = third->Fired.Subscribe([&] { fired += '3'; });
    second->SetInterval(10);
    second->SetEnabled(true);
    first->SetInterval(10);
    first->SetEnabled(true);
    timers.Advance(9);
    EXPECT_EQ(fired, "");
    timers.Advance(11);
    EXPECT_EQ(fired, "12313");
    EXPECT_EQ(timers.Now(), 20);
}

TEST(FilesOfTests, FailAtThePlannedCallAlone)
{
    FakeFiles files;
    files.PutText("a", "text");
    files.planned.Plan("copy", 2, 70);
    files.CopyFile("a", "b");
    EXPECT_EQ(FailureOf([&] { files.CopyFile("a", "c"); }), 70);
    files.CopyFile("a", "d");
    EXPECT_EQ(files.Paths(), (std::vector<std::string>{"a", "b", "d"}));
}

} // namespace
