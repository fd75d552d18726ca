#pragma once
// A journey as it is read: steps of words, and between them what the program is expected to answer.

#include "tests/journey_driver/answers.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// The journey can't be read, or tells something that can't be done.
class JourneyError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

inline void MustBe(bool condition, const std::string& why)
{
    if (!condition) {
        throw JourneyError(why);
    }
}

struct Word {
    std::string text;
    bool isQuoted = false;
};

// Either a step (words) or a block of expected answers.
struct Entry {
    int line = 0; // from 1
    std::vector<Word> words;
    std::vector<Expected> answers;
};

using Journey = std::vector<Entry>;

// Fails with JourneyError, which begins with the number of the line.
Journey ReadJourney(std::string_view text);

// Plays it from its first step to its last: the differences as text, empty if there are none. A journey that is not
// compared prints its lines as they come. Paths of the journey's own files are relative to the folder of its path.
// Fails with JourneyError, too.
std::string Play(const Journey& journey, const std::string& path, bool compares);

} // namespace quor
