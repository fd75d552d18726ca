#pragma once
// Long answers of the program, compared line by line with those that were looked at and kept in tests/data/kept.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace quor {

// With QUOR_KEEP_TEXTS in the environment, the text is kept from now on. Blanks at the end of a line don't count.
inline void ExpectAsKept(std::string text, const std::string& name)
{
    for (std::size_t at = text.find(" \n"); at != std::string::npos; at = text.find(" \n")) {
        text.erase(at, 1);
    }
    const std::string path = QUOR_TEST_DATA "/kept/" + name;
    if (std::getenv("QUOR_KEEP_TEXTS") != nullptr) {
        std::ofstream(path) << text;
    }
    std::ifstream file(path);
    EXPECT_EQ(text, std::string(std::istreambuf_iterator<char>(file), {})) << "isn't as it is kept in " << path;
}

} // namespace quor
