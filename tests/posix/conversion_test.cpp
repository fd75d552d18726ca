#include "binding/live.h"
#include "platform/whole_file.h"
#include "posix/disk_files.h"
#include "support/frm_view_pbar.h"
#include "tests/format/samples.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/test.h"

namespace {

namespace fs = std::filesystem;

TEST(AConversion, KeepsModeAndLinkOfTheFile)
{
    std::string pattern = (fs::temp_directory_path() / "conversion_XXXXXX").string();
    const fs::path folder = mkdtemp(pattern.data());
    const fs::path file = folder / "old.qvw";
    const auto old = Sample("old/v1_mixed.qvw");
    std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(old.data()), std::ssize(old));
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("old.qvw", folder / "link.qvw");

    DiskFiles files;
    FakeBoxes boxes;
    TestReporter reporter;
    FakeTimers timers;
    FakeForms forms(timers);
    FakeFiles noFiles;
    FakePictures pictures(noFiles);
    frmViewPBar progress(forms);
    Live live;
    LoneView view({files, boxes, reporter, timers, pictures, progress, live});
    boxes.answers = {BoxAnswer::Yes};
    view.Load(folder / "link.qvw");

    EXPECT_EQ(ReadWhole(*files.Open(file, OpenMode::Read)), Sample("old/v1_mixed.upgraded.qvw"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.qvw"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(fs::exists(folder / "old.bak"));
    fs::remove_all(folder);
}

} // namespace
