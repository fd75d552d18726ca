#include "login/user_list.h"

#include "base/failure.h"
#include "base/text.h"
#include "platform/whole_file.h"

#include <algorithm>

namespace quor {

namespace {

constexpr std::string_view firstLine = "quor users 1";
constexpr std::int64_t largestFile = 1 << 20;
constexpr std::size_t longestName = 64;

// What a hash begins with, and bounds of what it may cost to check one: a file must not make the program run out of
// memory or time.
constexpr std::string_view hashPrefix = "$argon2id$v=19$m=";
constexpr std::size_t longestHash = 127;
constexpr std::uint32_t mostMemory = 1 << 20; // KiB
constexpr std::uint32_t mostPasses = 16;

// From the front to the next such letter, and both taken off.
std::string_view TakeTo(char letter, std::string_view& text)
{
    const std::size_t end = std::min(text.find(letter), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

// The number between the words and the next comma is at most that one; all of it is taken off.
bool TakeBounded(std::string_view words, std::uint32_t most, std::string_view& text)
{
    const bool isThere = text.starts_with(words);
    text.remove_prefix(isThere ? words.size() : 0);
    const std::optional<std::uint32_t> number = ReadNumber<std::uint32_t>(TakeTo(',', text));
    return isThere && number && *number <= most;
}

bool IsHash(std::string_view text)
{
    const bool isPrintable = std::ranges::all_of(text, [](char letter) { return letter > ' ' && letter < 0x7F; });
    return isPrintable && text.size() <= longestHash && TakeBounded(hashPrefix, mostMemory, text) &&
           TakeBounded("t=", mostPasses, text) && text.starts_with("p=1$");
}

bool ReadRights(std::string_view text, std::set<std::int16_t>& rights)
{
    if (text == "-") {
        return true;
    }
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end == text.npos ? 0 : end + 1)) {
        end = text.find(',');
        const auto right = ReadRight(text.substr(0, end));
        if (!right) {
            return false;
        }
        rights.insert(*right);
    }
    return true;
}

// As a line of the file can hold it, and as names once were: a user whose name would be refused today isn't locked out.
bool CanBeKept(std::string_view name)
{
    const auto isControl = [](char letter) { return static_cast<unsigned char>(letter) < ' ' || letter == 0x7F; };
    const std::size_t length = CharacterCount(name);
    return length >= 1 && length <= longestName && TrimBlanks(name) == name && std::ranges::none_of(name, isControl);
}

// Empty if the line tells a user.
std::string ReadUser(std::string_view line, UserList& users)
{
    User user;
    user.hash = TakeTo(' ', line);
    const std::string_view rights = TakeTo(' ', line);
    user.name = line;
    if (!IsHash(user.hash)) {
        return "there is no hash that could be checked.";
    }
    if (!ReadRights(rights, user.rights)) {
        return "the rights are no numbers with commas between them.";
    }
    if (!CanBeKept(user.name)) {
        return "there is no name.";
    }
    if (FindUser(users, user.name) != nullptr) {
        return "the user is there twice.";
    }
    users.push_back(std::move(user));
    return {};
}

} // namespace

bool IsUserName(std::string_view name)
{
    return CanBeKept(name) && Escaped(name) == name;
}

std::optional<std::int16_t> ReadRight(std::string_view text)
{
    const std::optional<std::int16_t> right = ReadNumber<std::int16_t>(text);
    return right && *right >= 1 ? right : std::nullopt;
}

const User* FindUser(const UserList& users, std::string_view name)
{
    const auto found = std::ranges::find(users, name, &User::name);
    return found == users.end() ? nullptr : &*found;
}

UserList ReadUsers(std::string_view text)
{
    UserList users;
    for (int number = 1; number == 1 || !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        std::string fault;
        if (end == std::string_view::npos) {
            fault = "the line has no end.";
        } else if (number > 1) {
            fault = ReadUser(line, users);
        } else if (line != firstLine) {
            fault = "this is no file of users.";
        }
        if (!fault.empty()) {
            throw Failure(failures::typeMismatch, "Line " + std::to_string(number) + ": " + fault);
        }
    }
    return users;
}

std::string WriteUsers(const UserList& users)
{
    std::string text(firstLine);
    text += '\n';
    for (const User& user : users) {
        std::string rights;
        for (const std::int16_t right : user.rights) {
            rights += (rights.empty() ? "" : ",") + std::to_string(right);
        }
        text += user.hash + ' ' + (rights.empty() ? "-" : rights) + ' ' + user.name + '\n';
    }
    return text;
}

UserList LoadUsers(Files& files, const std::string& path)
{
    return ReadUsers(
        ReadText(files, path, largestFile, Failure(failures::outOfRange, "The file of users has more than 1 MB.")));
}

bool HasNoUsers(Files& files, const UserPlace& place)
{
    if (!files.IsAbsent(place.File())) {
        return false;
    }
    if (files.IsAbsent(place.config) && !files.IsAbsent(place.Note())) {
        throw Failure(failures::pathNotFound, "The folder \"" + place.config +
                                                  "\" is gone, though users were kept in it. Bring it back or, if "
                                                  "nobody has to log on any more, delete the file \"" +
                                                  place.Note() + "\".");
    }
    return true;
}

} // namespace quor
