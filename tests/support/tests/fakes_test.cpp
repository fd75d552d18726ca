#include "base/failure.h"
#include "tests/test.h"

namespace {

template <class Action> int NumberOf(Action action)
{
    try {
        action();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

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
    EXPECT_EQ(NumberOf([&] { files.CopyFile("a", "c"); }), 70);
    files.CopyFile("a", "d");
    EXPECT_EQ(files.Paths(), (std::vector<std::string>{"a", "b", "d"}));
}

TEST(FilesOfTests, ReplaceATargetAndSpareAReadOnlyOne)
{
    FakeFiles files;
    files.PutText("new", "new");
    files.PutText("old", "a longer text");
    files.CopyFile("new", "old");
    EXPECT_EQ(files.Text("old"), "new");
    files.PutText("kept", "kept");
    files.SetReadOnly("kept");
    EXPECT_EQ(NumberOf([&] { files.CopyFile("new", "kept"); }), 70);
    EXPECT_EQ(NumberOf([&] { files.Open("kept", OpenMode::Create); }), 70);
    EXPECT_EQ(NumberOf([&] { files.MoveFile("new", "kept"); }), 75);
    EXPECT_EQ(NumberOf([&] { files.CopyFile("gone", "kept"); }), 53);
    EXPECT_EQ(NumberOf([&] { files.Open("kept", OpenMode::Scratch); }), 75);
    EXPECT_EQ(files.Text("kept"), "kept");
    files.DeleteFile("kept");
    EXPECT_FALSE(files.Has("kept"));
}

TEST(FilesOfTests, ReadAndWriteByPosition)
{
    FakeFiles files;
    const auto file = files.Open("a", OpenMode::Create);
    const std::uint8_t written[] = {1, 2, 3};
    file->Write(2, written);
    std::uint8_t read[] = {9, 9, 9, 9};
    EXPECT_EQ(file->Read(3, read), 2U);
    EXPECT_EQ(std::vector(read, read + 4), (std::vector<std::uint8_t>{2, 3, 9, 9}));
    EXPECT_EQ(file->Read(50, read), 0U);
    const auto log = files.Open("a", OpenMode::Append);
    log->Write(0, written);
    EXPECT_EQ(files.Get("a"), (FakeFiles::Bytes{0, 0, 1, 2, 3, 1, 2, 3}));
}

TEST(BoxesOfTests, GetTheAnswersOfTheScriptThenTheSafeOnes)
{
    FakeBoxes boxes;
    boxes.answers = {BoxAnswer::Yes, BoxAnswer::Ok};
    EXPECT_EQ(boxes.Show("a", "", BoxButtons::YesNoCancel), BoxAnswer::Yes);
    EXPECT_THROW(boxes.Show("b", "", BoxButtons::YesNo), std::logic_error);
    EXPECT_EQ(boxes.Show("c", "", BoxButtons::YesNoCancel), BoxAnswer::Cancel);
    EXPECT_EQ(boxes.Show("d", "", BoxButtons::YesNo), BoxAnswer::No);
    EXPECT_EQ(boxes.Show("e", "", BoxButtons::Ok), BoxAnswer::Ok);
}

TEST(DialogsOfTests, FollowTheScriptAndCancelWithoutOne)
{
    FakeDialog dialog;
    dialog.FileName = "before";
    dialog.WillPickColor(Color{5});
    dialog.WillCancel();
    dialog.WillSave("saved");
    dialog.ShowColor();
    EXPECT_EQ(dialog.Color, Color{5});
    dialog.ShowFont();
    EXPECT_EQ(dialog.FileName, "before");
    dialog.ShowSave();
    EXPECT_EQ(dialog.FileName, "saved");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName, "");
    dialog.WillOpen("a");
    EXPECT_THROW(dialog.ShowSave(), std::logic_error);
}

} // namespace
