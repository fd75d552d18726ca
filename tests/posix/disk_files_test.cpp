#include "base/failure.h"
#include "posix/disk_files.h"
#include "posix/system_clock.h"
#include "posix/user_folders.h"
#include "tests/test.h"

#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr const char* accessList = "system.posix_acl_access";

class OnDisk : public testing::Test {
protected:
    OnDisk()
    {
        std::string pattern = (fs::temp_directory_path() / "disk_files_XXXXXX").string();
        m_folder = mkdtemp(pattern.data());
    }
    ~OnDisk() override { fs::remove_all(m_folder); }

    std::string Path(const std::string& name) const { return (m_folder / name).string(); }

    std::string Put(const std::string& name, const std::string& text) const
    {
        std::ofstream(Path(name), std::ios::binary) << text;
        return Path(name);
    }

    static std::string Text(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::size_t EntryCount() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_folder), fs::directory_iterator()));
    }

    static mode_t ModeOf(const std::string& path)
    {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0);
        return status.st_mode & 07777;
    }

    DiskFiles files;
    fs::path m_folder;
};

std::span<const std::uint8_t> BytesOf(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

TEST_F(OnDisk, WritesOfAnySizeAndOrderLandWhereTheyBelong)
{
    std::string model;
    const auto file = files.Open(Path("a"), OpenMode::Create);
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const bool jumps = random() % 8 == 0;
        const std::size_t position = jumps ? random() % (model.size() + 1) : model.size();
        const std::string piece(random() % 16 == 0 ? random() % 100'000 : random() % 100,
                                static_cast<char>('a' + round % 26));
        file->Write(static_cast<std::int64_t>(position), BytesOf(piece));
        model.resize(std::max(model.size(), position + piece.size()));
        model.replace(position, piece.size(), piece);
        if (random() % 10 == 0) {
            EXPECT_EQ(file->Size(), std::ssize(model));
            std::vector<std::uint8_t> back(50, '-');
            const std::size_t from = random() % (model.size() + 10);
            const std::size_t had = file->Read(static_cast<std::int64_t>(from), back);
            EXPECT_EQ(had, std::min<std::size_t>(50, from < model.size() ? model.size() - from : 0));
            EXPECT_EQ(std::string(back.begin(), back.begin() + static_cast<std::ptrdiff_t>(had)),
                      had == 0 ? "" : model.substr(from, had));
        }
    }
    file->Close();
    EXPECT_EQ(Text(Path("a")), model);
}

TEST_F(OnDisk, ModesOfOpeningDoWhatTheySay)
{
    Put("old", "123456");
    files.Open(Path("old"), OpenMode::Append)->Write(0, BytesOf("7"));
    files.Open(Path("log"), OpenMode::Append)->Write(0, BytesOf("new"));
    EXPECT_EQ(Text(Path("old")) + Text(Path("log")), "1234567new");
    files.Open(Path("old"), OpenMode::Create)->Write(0, BytesOf("x"));
    EXPECT_EQ(Text(Path("old")), "x");
    files.Open(Path("scratch"), OpenMode::Scratch)->Write(0, BytesOf("s"));
    EXPECT_EQ(ModeOf(Path("scratch")), 0600U);
    EXPECT_EQ(FailureOf([&] { files.Open(Path("old"), OpenMode::Scratch); }), failures::pathFileAccess);
    fs::create_symlink(Path("nowhere"), Path("link"));
    EXPECT_EQ(FailureOf([&] { files.Open(Path("link"), OpenMode::Scratch); }), failures::pathFileAccess);
    EXPECT_EQ(FailureOf([&] { files.Open(Path("old"), OpenMode::Read)->Write(0, BytesOf("y")); }),
              failures::pathFileAccess);
}

TEST_F(OnDisk, OddPathsFailWithoutBlocking)
{
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    fs::create_directory(Path("folder"));
    Put("file", "text");
    fs::create_symlink(Path("loop"), Path("loop"));
    const struct {
        std::string path;
        std::int32_t number;
    } cases[] = {
        {Path("missing"), failures::fileNotFound},
        {Path("missing/file"), failures::pathNotFound},
        {Path("file/file"), failures::pathNotFound},
        {Path(std::string(300, 'n')), failures::pathNotFound},
        {Path("loop"), failures::pathNotFound},
        {Path("folder"), failures::pathFileAccess},
        {Path("pipe"), failures::pathFileAccess},
        {"/dev/zero", failures::pathFileAccess},
        {Path("file") + std::string("\0", 1), failures::pathFileAccess},
        {"", failures::fileNotFound},
    };
    for (const auto& each : cases) {
        const std::string& path = each.path;
        EXPECT_EQ(FailureOf([&] { files.Open(path, OpenMode::Read); }), each.number) << path;
        EXPECT_NE(FailureOf([&] { files.CopyFile(path, Path("target")); }), 0) << path;
        if (each.number != failures::fileNotFound) {
            EXPECT_NE(FailureOf([&] { files.CopyFile(Path("file"), path); }), 0) << path;
            EXPECT_NE(FailureOf([&] { files.Open(path, OpenMode::Create); }), 0) << path;
        }
    }
    EXPECT_FALSE(files.FileExists(Path("folder")));
    EXPECT_FALSE(files.FileExists(Path("missing")));
    EXPECT_TRUE(files.FileExists(Path("file")));
    EXPECT_EQ(EntryCount(), 4U);
}

TEST_F(OnDisk, ACopyKeepsPermissionsOwnerAndLinksOfItsTarget)
{
    const std::string source = Put("source", "new");
    const std::string target = Put("target", "old");
    ASSERT_EQ(chmod(target.c_str(), 0640), 0);
    const bool ownsAll = chown(target.c_str(), 1234, 1235) == 0;
    fs::create_symlink("target", Path("link"));
    fs::create_symlink(Path("link"), Path("second"));
    files.CopyFile(source, Path("second"));
    EXPECT_EQ(Text(target), "new");
    EXPECT_TRUE(fs::is_symlink(Path("link")) && fs::is_symlink(Path("second")));
    EXPECT_EQ(ModeOf(target), 0640U);
    struct stat status {};
    ASSERT_EQ(stat(target.c_str(), &status), 0);
    EXPECT_TRUE(!ownsAll || (status.st_uid == 1234 && status.st_gid == 1235));

    const mode_t mask = umask(027);
    fs::create_symlink("made", Path("dangling"));
    files.CopyFile(source, Path("dangling"));
    umask(mask);
    EXPECT_EQ(ModeOf(Path("made")), 0640U);
    EXPECT_EQ(EntryCount(), 6U);
}

TEST_F(OnDisk, AbsentIsOnlyWhatSurelyIsNotThere)
{
    fs::create_directory(Path("folder"));
    Put("file", "");
    fs::create_symlink("nowhere", Path("dangling"));
    fs::create_symlink("loop", Path("loop"));
    fs::create_symlink("folder", Path("link"));
    for (const char* absent : {"none", "none/deeper/still", "folder/none", "link/none"}) {
        EXPECT_TRUE(files.IsAbsent(Path(absent))) << absent;
    }
    for (const char* there : {"folder", "file", "dangling", "loop", "link"}) {
        EXPECT_FALSE(files.IsAbsent(Path(there))) << there;
    }
    for (const char* unknown : {"file/none", "dangling/none", "dangling/none/deeper", "loop/none"}) {
        EXPECT_NE(FailureOf([&] { files.IsAbsent(Path(unknown)); }), 0) << unknown;
    }
    fs::permissions(Path("folder"), fs::perms::none);
    const uid_t user = geteuid();
    const bool isPrivileged = user == 0 && seteuid(65534) == 0;
    EXPECT_EQ(FailureOf([&] { files.IsAbsent(Path("folder/none")); }), failures::permissionDenied);
    EXPECT_TRUE(!isPrivileged || seteuid(user) == 0);
}

TEST(TheUsersFolders, AreAbsoluteAndTheSameForAllPrograms)
{
    const char* before = std::getenv("HOME");
    const std::string home = before == nullptr ? "/" : before;
    for (const auto& [own, config, expected] :
         {std::tuple{"/home/ada", "", std::string("/home/ada/.config/quor")},
          {"/home/ada", "rel", "/home/ada/.config/quor"},
          {"/home/ada", "/etc/ada", "/etc/ada/quor"},
          {"rel", "rel", getpwuid(getuid())->pw_dir + std::string("/.config/quor")}}) {
        setenv("HOME", own, 1);
        setenv("XDG_CONFIG_HOME", config, 1);
        EXPECT_EQ(ConfigFolder(), expected);
    }
    setenv("HOME", home.c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
}

std::string Attribute(const std::string& path, const char* name)
{
    char value[100];
    const ssize_t size = getxattr(path.c_str(), name, value, sizeof value);
    return {value, static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
}

// The owner and user 1234 read and write, the group and others nothing; as the system keeps it, little-endian.
std::string AccessList()
{
    const std::string none(4, '\377'); // the number where an entry needs none
    std::string list("\2\0\0\0", 4);
    list += std::string("\1\0\6\0", 4) + none;
    list += std::string("\2\0\6\0\322\4\0\0", 8);
    list += std::string("\4\0\0\0", 4) + none;
    list += std::string("\20\0\6\0", 4) + none;
    return list + std::string("\40\0\0\0", 4) + none;
}

TEST_F(OnDisk, AFileAfterAnOldOneKeepsAccessListAndUserAttributes)
{
    const std::string list = AccessList();
    const std::string target = Put("target", "old");
    const bool hasLists = setxattr(target.c_str(), accessList, list.data(), list.size(), 0) == 0;
    const bool hasAttributes = setxattr(target.c_str(), "user.note", "mine", 4, 0) == 0;
    const mode_t mode = ModeOf(target);
    files.CopyFile(Put("source", "new"), target);
    const auto converted = files.OpenLike(Path("converted"), target);
    for (const std::string& path : {target, Path("converted")}) {
        EXPECT_EQ(ModeOf(path), mode);
        EXPECT_EQ(Attribute(path, accessList), hasLists ? list : "");
        EXPECT_EQ(Attribute(path, "user.note"), hasAttributes ? "mine" : "");
    }
    EXPECT_EQ(FailureOf([&] { files.OpenLike(Path("source"), target); }), failures::pathFileAccess);
}

TEST_F(OnDisk, AListThatAFolderGivesNewFilesIsNoneOfAnOldFile)
{
    const std::string target = Put("target", "old");
    const std::string list = AccessList();
    setxattr(m_folder.c_str(), "system.posix_acl_default", list.data(), list.size(), 0);
    files.CopyFile(Put("source", "new"), target);
    EXPECT_EQ(Attribute(target, accessList), "");
}

// A target of an ordinary user, in a folder in which that user makes no files.
class InAClosedFolder : public OnDisk {
protected:
    InAClosedFolder()
    {
        constexpr uid_t nobody = 65'534;
        fs::create_directory(Path("temp"));
        setenv("TMPDIR", Path("temp").c_str(), 1);
        chmod(m_folder.c_str(), 0555);
        if (geteuid() == 0) {
            EXPECT_EQ(chown(Path("temp").c_str(), nobody, 0) + chown(target.c_str(), nobody, 0), 0);
            EXPECT_EQ(seteuid(nobody), 0);
        }
    }
    ~InAClosedFolder() override
    {
        static_cast<void>(seteuid(getuid()));
        chmod(m_folder.c_str(), 0755);
        unsetenv("TMPDIR");
    }

    const std::string target = Put("target", "a longer old text");
    const std::string source = Put("source", "new");
};

TEST_F(InAClosedFolder, AFileIsWrittenInPlace)
{
    EXPECT_EQ(FailureOf([&] { files.CopyFile(source, Path("fresh")); }), failures::permissionDenied);
    files.CopyFile(source, target);
    EXPECT_EQ(Text(target), "new");
    EXPECT_TRUE(fs::is_empty(Path("temp")));
}

TEST_F(OnDisk, AReadOnlyTargetStays)
{
    const std::string source = Put("source", "new");
    const std::string target = Put("target", "old");
    ASSERT_EQ(chmod(target.c_str(), 0444), 0);
    EXPECT_EQ(FailureOf([&] { files.CopyFile(source, target); }), failures::permissionDenied);
    EXPECT_EQ(Text(target), "old");
    EXPECT_EQ(EntryCount(), 2U);
    files.DeleteFile(target);
    EXPECT_FALSE(files.FileExists(target));
}

TEST_F(OnDisk, AMoveNeverReplaces)
{
    const std::string one = Put("one", "1");
    const std::string two = Put("two", "2");
    EXPECT_EQ(FailureOf([&] { files.MoveFile(one, two); }), failures::pathFileAccess);
    EXPECT_EQ(Text(one) + Text(two), "12");
    files.MoveFile(one, Path("three"));
    EXPECT_EQ(Text(Path("three")), "1");
    EXPECT_EQ(FailureOf([&] { files.MoveFile(one, Path("four")); }), failures::fileNotFound);
    EXPECT_EQ(FailureOf([&] { files.DeleteFile(one); }), failures::fileNotFound);
}

TEST_F(OnDisk, TemporaryNamesDiffer)
{
    EXPECT_NE(files.TempName(), files.TempName());
    EXPECT_GE(files.TempName().size(), 32U);
}

TEST_F(OnDisk, ASaveSweepsWhatKilledOnesHaveLeftLongAgo)
{
    const std::string digits = "0123456789abcdef0123456789abcdef";
    const struct {
        std::string name;
        bool isOld, stays;
    } cases[] = {
        {".quor" + digits + ".tmp", true, false}, {"quor" + digits + ".tmp", true, false},
        {".quor" + digits + ".old", true, true},  {".quor" + digits + "0.tmp", true, true},
        {"quor" + digits + "tmp", true, true},    {".quor" + std::string(32, 'a') + ".tmp", false, true},
    };
    for (const auto& [name, isOld, stays] : cases) {
        Put(name, name);
        if (isOld) {
            fs::last_write_time(Path(name), fs::file_time_type::clock::now() - std::chrono::hours(25));
        }
    }
    files.CopyFile(Put("source", "new"), Path("target"));
    for (const auto& [name, isOld, stays] : cases) {
        EXPECT_EQ(files.FileExists(Path(name)), stays) << name;
    }
}

TEST(TheClock, TellsDateAndTimeInAtMost22Characters)
{
    const std::pair<std::tm, const char*> cases[] = {
        {{5, 58, 22, 24, 10, 126, 0, 0, 0, 0, nullptr}, "11/24/2026 10:58:05 PM"},
        {{9, 0, 0, 1, 0, 126, 0, 0, 0, 0, nullptr}, "1/1/2026 12:00:09 AM"},
        {{0, 30, 12, 7, 2, 126, 0, 0, 0, 0, nullptr}, "3/7/2026 12:30:00 PM"},
        {{59, 59, 11, 7, 2, 126, 0, 0, 0, 0, nullptr}, "3/7/2026 11:59:59 AM"},
    };
    for (const auto& [time, text] : cases) {
        EXPECT_EQ(GeneralDate(time), text);
    }
    EXPECT_LE(SystemClock().Now().size(), 22U);
}

} // namespace
