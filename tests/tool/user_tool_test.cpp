#include "apps/login/sodium_hasher.h"
#include "apps/tool/user_tool.h"
#include "base/failure.h"
#include "posix/disk_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quor {
namespace {

namespace fs = std::filesystem;

struct TheUserTool : testing::Test {
    DiskFiles files;
    SodiumHasher hasher;
    std::string password = "correct horse";
    std::ostringstream out;
    std::ostringstream errors;
    const fs::path root = fs::temp_directory_path() / files.TempName();
    const fs::path path = root / "quor" / "users";

    ~TheUserTool() override { fs::remove_all(root); }

    int Run(const std::vector<std::string>& words)
    {
        out.str("");
        errors.str("");
        const UserTool::Ports ports{files, hasher, [this] { return password; }, out, errors};
        return UserTool(ports, path.string()).Run(words);
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
    EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), {}), 1) << "nothing is left beside it";
    ASSERT_EQ(Run({"remove", "Bo"}), 0);
    EXPECT_FALSE(out.str().empty()) << "that nobody can log on is told";
}

TEST_F(TheUserTool, RefusesWithoutTouchingTheFile)
{
    fs::create_directories(path.parent_path());
    const std::vector<std::vector<std::string>> commands = {{},
                                                            {"add"},
                                                            {"add", " Ada"},
                                                            {"add", "Ada", "0"},
                                                            {"add", "Ada", "x"},
                                                            {"remove", "Ada"},
                                                            {"list", "x"},
                                                            {"passwd", "Ada"},
                                                            {"rights", "Ada", "1"},
                                                            {"add", "Bo\nquor"},
                                                            {"drop", "Ada"}};
    for (const auto& command : commands) {
        EXPECT_EQ(Run(command), 2);
        EXPECT_EQ(std::ranges::count(errors.str(), '\n'), 1) << errors.str();
        EXPECT_FALSE(fs::exists(path));
    }
    std::ofstream(path) << "quor users 1\nmine\n";
    for (const auto& command : {std::vector<std::string>{"add", "Ada"}, {"list"}, {"remove", "Ada"}}) {
        EXPECT_EQ(Run(command), 2);
        EXPECT_NE(errors.str().find("Line 2: "), std::string::npos) << errors.str();
        EXPECT_EQ(Text(), "quor users 1\nmine\n");
    }
}

} // namespace
} // namespace quor
