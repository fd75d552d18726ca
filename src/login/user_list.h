#pragma once
// The users of the program with their rights and the hashes of their passwords, and the file that keeps them: a first
// line that says what it is, then a line a user: hash, rights with commas between them, name.

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Files;

// Where the users are kept, in the program's folders of one person.
struct UserPlace {
    std::string config;
    std::string state;

    std::string File() const { return config + "/users"; }
    std::string Note() const { return state + "/users-kept"; } // is there while the file tells of a user
};

struct User {
    std::string name;
    std::set<std::int16_t> rights;
    std::string hash;
};

using UserList = std::vector<User>;

// From 1 to 64 characters, all of them safe to show, no blank at the ends.
bool IsUserName(std::string_view name);

// The number of a right, from 1 on; nothing for another text.
std::optional<std::int16_t> ReadRight(std::string_view text);

// Null if there is none of exactly this name.
const User* FindUser(const UserList& users, std::string_view name);

// Fails with 13 and words that begin with "Line N: " for a text that isn't one of users.
UserList ReadUsers(std::string_view text);
std::string WriteUsers(const UserList& users);

// Of a file; fails as the port does, too.
UserList LoadUsers(Files& files, const std::string& path);

// Whether there is surely no file of users, so that nobody has to log on. Fails where that can't be told: what may hold
// the file can't be looked at, or its whole folder is gone though users were kept there, as on a disk that isn't
// mounted.
bool HasNoUsers(Files& files, const UserPlace& place);

} // namespace quor
