#include "base/failure.h"
#include "login/frm_log_on.h"
#include "login/user_login.h"
#include "platform/password_hash.h"
#include "tests/test.h"

namespace {

const std::string hashStart = "$argon2id$v=19$m=65536,t=2,p=1$";

// A hash is the password behind the beginning that files demand.
struct PlainHasher final : PasswordHasher {
    int checks = 0;

    std::string Hash(const std::string& password) override { return hashStart + password; }
    bool Verify(const std::string& hash, const std::string& password) override
    {
        ++checks;
        return hash == Hash(password);
    }
};

const std::string file = "quor users 1\n" + hashStart + "secret 1,15 Ada Holm\n" + hashStart + "other - Bo\n";

struct TheLogin : testing::Test {
    FakeFiles files;
    FakeTimers timers;
    FakeForms forms{timers};
    FakeBoxes boxes;
    PlainHasher hasher;
    UserLogin login{{files, forms, timers, boxes, hasher}, {"config", "state"}};
    std::vector<bool> answers;
    Subscription answered = login.LogOn.Subscribe([this](bool success) { answers.push_back(success); });

    frmLogOn& Dialog()
    {
        auto* form = dynamic_cast<frmLogOn*>(forms.Find("frmLogOn"));
        EXPECT_NE(form, nullptr);
        return *form;
    }

    void Try(const std::string& name, const std::string& password)
    {
        Dialog().txtUser.Type(name);
        Dialog().txtPassword.Type(password);
        Dialog().cmdOK.Push();
        timers.Advance(20);
    }
};

TEST_F(TheLogin, LetsTheDesktopUserInWithoutAFile)
{
    EXPECT_TRUE(login.IsLoggedOn());
    EXPECT_TRUE(login.HasPrivilege(rights::editViews));
}

TEST_F(TheLogin, LetsNobodyInWhereUsersMayBe)
{
    for (const std::string words : {"Permission denied", "File not found", "state/users-kept"}) {
        FakeFiles own;
        own.PutText(words.starts_with("File") ? "config/users/a file of a folder" : "state/users-kept", "");
        for (int n = 1; words.starts_with("Perm") && n <= 2; ++n) {
            own.planned.Plan("absent", n, failures::permissionDenied);
        }
        boxes.shown.clear();
        UserLogin shut({own, forms, timers, boxes, hasher}, {"config", "state"});
        EXPECT_FALSE(shut.IsLoggedOn() || shut.HasPrivilege(rights::editViews)) << words;
        shut.ShowLogOn(true);
        ASSERT_EQ(boxes.shown.size(), 1U) << words;
        EXPECT_NE(boxes.shown[0].text.find(words), std::string::npos) << boxes.shown[0].text;
    }
    files.PutText("state/users-kept", "");
    files.PutText("config/view-editor.ini", "");
    EXPECT_TRUE(login.IsLoggedOn()) << "who deleted the file itself did so on purpose";
}

TEST_F(TheLogin, KnowsAUserWithTheRightsOfTheFile)
{
    files.PutText("config/users", file);
    EXPECT_FALSE(login.IsLoggedOn());
    EXPECT_FALSE(login.HasPrivilege(1));
    login.ShowLogOn(true);
    Try("Ada Holm", "secret");
    EXPECT_EQ(answers, std::vector<bool>{true});
    EXPECT_TRUE(login.HasPrivilege(15));
    EXPECT_FALSE(login.HasPrivilege(2));
}

TEST_F(TheLogin, TellsNoStrangerFromAWrongPassword)
{
    files.PutText("config/users", file);
    login.ShowLogOn(true);
    Try("Ada Holm", "wrong");
    const std::string words = "The user or the password is not right.";
    EXPECT_EQ(hasher.checks, 1);
    EXPECT_EQ(Dialog().lblMessage.Caption(), words + " Wait 1 second.");
    EXPECT_TRUE(Dialog().txtPassword.Text().empty());
    timers.Advance(60'000);
    EXPECT_EQ(Dialog().lblMessage.Caption(), words);
    Try("Nobody", "secret");
    EXPECT_EQ(hasher.checks, 2) << "it takes as long";
    EXPECT_EQ(Dialog().lblMessage.Caption(), words + " Wait 2 seconds.");
    Dialog().cmdCancel.Push();
    timers.Advance(20);
    EXPECT_EQ(answers, std::vector<bool>{false});
}

TEST_F(TheLogin, PausesLongerAfterEachFailureAndAnewInTheNextDialog)
{
    files.PutText("config/users", file);
    login.ShowLogOn(true);
    Try("Ada Holm", "wrong");
    Try("Ada Holm", "secret");
    EXPECT_EQ(hasher.checks, 1) << "not before the pause is over";
    timers.Advance(1000);
    Try("Ada Holm", "wrong");
    timers.Advance(1500);
    Try("Ada Holm", "secret");
    EXPECT_EQ(hasher.checks, 2);
    Dialog().cmdCancel.Push();
    login.ShowLogOn(true);
    EXPECT_EQ(Dialog().lblMessage.Caption(), "Wait 2 seconds.");
    Try("Ada Holm", "secret");
    EXPECT_EQ(hasher.checks, 2) << "a new dialog is no way around it";
    timers.Advance(2000);
    Try("Ada Holm", "secret");
    EXPECT_TRUE(login.IsLoggedOn());
    EXPECT_EQ(frmLogOn::PauseAfter(1), 1000);
    EXPECT_EQ(frmLogOn::PauseAfter(1000), 60'000);
}

TEST_F(TheLogin, LetsNobodyInByADamagedFile)
{
    const std::string faults[] = {
        "",
        "quor users 1",
        "quor users 2\n",
        "quor users 1\n\n",
        "quor users 1\nhash 1 Ada\n",
        "quor users 1\n$argon2id$v=19$m=99999999,t=2,p=1$x 1 Ada\n",
        "quor users 1\n$argon2id$v=19$m=65536,t=9999,p=1$x 1 Ada\n",
        "quor users 1\n" + hashStart + "x 1, Ada\n",
        "quor users 1\n" + hashStart + "x 70000 Ada\n",
        "quor users 1\n" + hashStart + "x 1 \n",
        "quor users 1\n" + hashStart + "x 1 " + std::string(65, 'a') + "\n",
        file + hashStart + "x 1 Bo\n",
    };
    for (const std::string& fault : faults) {
        files.PutText("config/users", fault);
        UserLogin damaged({files, forms, timers, boxes, hasher}, {"config", "state"});
        const Subscription end = damaged.LogOn.Subscribe([this](bool success) { answers.push_back(success); });
        boxes.shown.clear();
        damaged.ShowLogOn(true);
        timers.Advance(20);
        EXPECT_EQ(std::exchange(answers, {}), std::vector<bool>{false}) << fault;
        ASSERT_EQ(boxes.shown.size(), 1U) << fault;
        EXPECT_NE(boxes.shown[0].text.find("Line "), std::string::npos) << boxes.shown[0].text;
    }
}

} // namespace
