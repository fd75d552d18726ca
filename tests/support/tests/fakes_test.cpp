#include "tests/test.h"

namespace {

TEST(PortsInMemory, RefuseWhatThoseForPeopleRefuse)
{
    FakeFiles files;
    files.PutText("a", "text");
    files.PutText("b", "");
    EXPECT_EQ(FailureOf([&] { files.CopyFile("none", "b"); }), failures::fileNotFound);
    EXPECT_EQ(FailureOf([&] { files.MoveFile("a", "b"); }), failures::pathFileAccess);
    EXPECT_EQ(FailureOf([&] { files.Open("a", OpenMode::Scratch); }), failures::pathFileAccess);
    EXPECT_EQ(FailureOf([&] { files.Open("a", OpenMode::Read)->Write(0, {}); }), failures::pathFileAccess);
    FakeDialog dialog;
    dialog.FileName = "a";
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "");
    dialog.WillOpen("a");
    EXPECT_THROW(dialog.ShowColor(), std::logic_error);
    FakeBoxes boxes;
    boxes.answers = {BoxAnswer::Yes};
    EXPECT_THROW(boxes.Show("", "", BoxButtons::Ok), std::logic_error);
}

TEST(PortsInMemory, FireTimersInOrderOfTheirTimeThenOfTheirMaking)
{
    FakeTimers timers;
    std::string fired;
    std::vector<std::unique_ptr<Timer>> made;
    std::vector<Subscription> listening;
    for (const int interval : {20, 10, 10}) {
        made.push_back(timers.Make());
        made.back()->SetInterval(interval);
        made.back()->SetEnabled(true);
        listening.push_back(made.back()->Fired.Subscribe([&fired, n = made.size()] { fired += std::to_string(n); }));
    }
    timers.Advance(9);
    EXPECT_EQ(fired, "");
    timers.Advance(11);
    EXPECT_EQ(fired, "23123");
}

} // namespace
