// A file of users: what is read is written as text that is read as the same users.

#include "base/failure.h"
#include "fuzz/harness.h"
#include "login/user_list.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quor;
    UserList users;
    try {
        users = ReadUsers(TextOf(data, size));
    } catch (const Failure& failure) {
        Require(failure.Description().starts_with("Line "), "a refusal names the line");
        return 0;
    }
    const std::string written = WriteUsers(users);
    const UserList again = ReadUsers(written);
    Require(again.size() == users.size() && WriteUsers(again) == written, "no user is lost or changed by a save");
    return 0;
}
