#include "binding/live.h"
#include "posix/disk_files.h"
#include "support/frm_view_pbar.h"
#include "tests/format/samples.h"
#include "tests/journey_driver/lone_view.h"
#include "tests/support/fake_boxes.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_pictures.h"
#include "tests/support/fake_timers.h"
#include "tests/support/test_reporter.h"

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace quor {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(AConversion, KeepsModeOwnerAndLinkOfTheFile)
{
    std::string pattern = (fs::temp_directory_path() / "conversion_XXXXXX").string();
    const fs::path folder = mkdtemp(pattern.data());
    const fs::path file = folder / "old.qvw";
    const auto old = Sample("old/v1_mixed.qvw");
    std::ofstream(file, std::ios::binary).write(reinterpret_cast<const char*>(old.data()), std::ssize(old));
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    const bool ownsAll = chown(file.c_str(), 1234, 1235) == 0;
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
    LoneView view({.files = files,
                   .boxes = boxes,
                   .reporter = reporter,
                   .forms = forms,
                   .timers = timers,
                   .pictures = pictures,
                   .progress = progress,
                   .live = live},
                  nullptr);
    boxes.answers = {BoxAnswer::Yes};
    view.Load(folder / "link.qvw");

    const auto converted = Sample("old/v1_mixed.upgraded.qvw");
    EXPECT_EQ(TextOf(file), std::string(converted.begin(), converted.end()));
    EXPECT_TRUE(fs::is_symlink(folder / "link.qvw"));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_TRUE(!ownsAll || (status.st_uid == 1234 && status.st_gid == 1235));
    EXPECT_TRUE(fs::exists(folder / "old.bak"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 3);
    fs::remove_all(folder);
}

} // namespace
} // namespace quor
