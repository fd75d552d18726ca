#pragma once
// The sample files as bytes.

#include "base/failure.h"

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

// The number of the failure that the body ends with, 0 if it ends well.
template <class Body> std::int32_t FailureOf(Body&& body)
{
    try {
        body();
        return 0;
    } catch (const Failure& failure) {
        return failure.Number();
    }
}

} // namespace quor
