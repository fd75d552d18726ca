#pragma once
// The sample files as bytes.

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quor {

inline std::vector<std::uint8_t> Sample(const std::string& name)
{
    std::ifstream file(QUOR_TEST_DATA "/samples/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace quor
