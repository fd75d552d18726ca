#pragma once
// The users of the program with their rights and the hashes of their passwords, and the file that keeps them: a first
// line that says what it is, then a line a user: hash, rights with commas between them, name.

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Files;

struct User {
    std::string name;
    std::set<std::int16_t> rights;
    std::string hash;
};

using UserList = std::vector<User>;

// From 1 to 64 characters, none of them a control character, no blank at the ends.
bool IsUserName(std::string_view name);

// Null if there is none of exactly this name.
const User* FindUser(const UserList& users, std::string_view name);

// Fails with 13 and words that begin with "Line N: " for a text that isn't one of users.
UserList ReadUsers(std::string_view text);
std::string WriteUsers(const UserList& users);

// Of a file; fails as the port does, too.
UserList LoadUsers(Files& files, const std::string& path);

} // namespace quor
