#include "apps/login/sodium_hasher.h"
#include "apps/tool/user_tool.h"
#include "base/failure.h"
#include "posix/disk_files.h"
#include "tests/test.h"

#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

struct TheUserTool : testing::Test {
    DiskFiles files;
    SodiumHasher hasher;
    std::string password = "correct horse";
    std::function<void()> whileTyped = [] {};
    std::ostringstream out;
    std::ostringstream errors;
    const fs::path root = fs::temp_directory_path() / files.TempName();
    const UserPlace place{(root / "config").string(), (root / "state").string()};
    const fs::path path = place.File();
    const fs::path note = place.Note();

    ~TheUserTool() override { fs::remove_all(root); }

    int Run(const std::vector<std::string>& words)
    {
        out.str("");
        errors.str("");
        const UserTool::Ports ports{files, hasher,
                                    [this] {
                                        std::exchange(whileTyped, [] {})();
                                        return password;
                                    },
                                    out, errors};
        return UserTool(ports, place).Run(words);
    }

    std::string Text() const
    {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
};

TEST_F(TheUserTool, KeepsUsersWithTheirRightsAndPasswords)
{
    ASSERT_EQ(Run({"add", "Ada Holm", "15", "1"}), 0) << errors.str();
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    password = "another";
    ASSERT_EQ(Run({"add", "Bo"}), 0);
    EXPECT_EQ(out.str(), "Bo can't open the editor, which takes the right 15\n");
    ASSERT_EQ(Run({"list"}), 0);
    EXPECT_EQ(out.str(), "Ada Holm: 1 15\nBo:\n");
    UserList users = LoadUsers(files, path.string());
    EXPECT_TRUE(hasher.Verify(users[0].hash, "correct horse"));
    EXPECT_FALSE(hasher.Verify(users[0].hash, "another"));
    EXPECT_EQ(Text().find("horse"), std::string::npos);

    password = "a third";
    ASSERT_EQ(Run({"passwd", "Bo"}), 0);
    ASSERT_EQ(Run({"rights", "Bo", "2", "3"}), 0);
    fs::permissions(path, fs::perms::all);
    ASSERT_EQ(Run({"remove", "Ada Holm"}), 0);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    users = LoadUsers(files, path.string());
    ASSERT_EQ(users.size(), 1U);
    EXPECT_TRUE(hasher.Verify(users[0].hash, "a third"));
    EXPECT_EQ(users[0].rights, (std::set<std::int16_t>{2, 3}));
    EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), {}), 2) << "nothing but the lock is beside it";
    ASSERT_EQ(Run({"remove", "Bo"}), 0);
    EXPECT_FALSE(out.str().empty()) << "that nobody can log on is told";
}

TEST_F(TheUserTool, ShowsRightsAndTakesAllOnlyAtAWord)
{
    ASSERT_EQ(Run({"add", "Ada", "15", "1"}), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(Run({"rights", "Ada"}), 0);
    EXPECT_EQ(out.str(), "Ada: 1 15\n");
    EXPECT_EQ(Run({"rights", "Ada", "none", "1"}), 2);
    EXPECT_EQ(Run({"rights", "Ada", "none"}), 0);
    EXPECT_EQ(Run({"list"}), 0);
    EXPECT_EQ(out.str(), "Ada:\n");
}

TEST_F(TheUserTool, KeepsWhatOthersDoWhileAPasswordIsTyped)
{
    ASSERT_EQ(Run({"add", "Ada"}) + Run({"add", "Bo"}), 0);
    whileTyped = [this] { Run({"remove", "Bo"}); };
    EXPECT_EQ(Run({"passwd", "Ada"}), 0) << errors.str();
    EXPECT_EQ(Run({"list"}), 0);
    EXPECT_EQ(out.str(), "Ada:\n");
}

TEST_F(TheUserTool, KeepsAllUsersAddedAtTheSameTime)
{
    struct : PasswordHasher { // twenty slow hashes at a time would take all memory
        std::string Hash(const std::string& text) override { return "$argon2id$v=19$m=1,t=1,p=1$" + text; }
        bool Verify(const std::string& /*hash*/, const std::string& /*text*/) override { return false; }
    } quick;
    const UserTool::Ports ports{files, quick, [] { return "any"; }, out, errors};
    constexpr int count = 20;
    std::vector<pid_t> children;
    for (int number = 0; number < count; ++number) {
        children.push_back(fork());
        if (children.back() == 0) {
            _exit(UserTool(ports, place).Run(std::vector{std::string("add"), "user " + std::to_string(number)}));
        }
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(LoadUsers(files, place.File()).size(), count);
}

TEST_F(TheUserTool, NotesThatThereAreUsersUntilTheLastIsGone)
{
    ASSERT_EQ(Run({"add", "Ada"}), 0);
    EXPECT_TRUE(fs::exists(note));
    fs::rename(place.config, root / "away");
    for (const auto& command : {std::vector<std::string>{"list"}, {"add", "Bo"}, {"remove", "Ada"}}) {
        EXPECT_EQ(Run(command), 2);
        EXPECT_NE(errors.str().find(note.string()), std::string::npos) << errors.str();
        EXPECT_FALSE(fs::exists(place.config));
    }
    fs::rename(root / "away", place.config);
    ASSERT_EQ(Run({"remove", "Ada"}), 0);
    EXPECT_FALSE(fs::exists(note));
    fs::create_directories(note);
    EXPECT_EQ(Run({"add", "Bo"}), 0);
}

TEST_F(TheUserTool, LeavesAFolderInThePlaceOfTheFileAlone)
{
    fs::create_directories(path);
    fs::permissions(path, fs::perms::all);
    for (const auto& command : {std::vector<std::string>{"list"}, {"add", "Ada"}}) {
        EXPECT_EQ(Run(command), 2);
        EXPECT_NE(errors.str().find("This is a folder."), std::string::npos) << errors.str();
        EXPECT_EQ(fs::status(path).permissions(), fs::perms::all);
    }
}

} // namespace
