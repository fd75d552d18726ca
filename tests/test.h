#pragma once
// What nearly every test uses: GoogleTest, the ports in memory, and the standard library's usual parts.

#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_ports.h"
#include "tests/support/fake_server.h"
#include "tests/support/fake_timers.h"
#include "tests/support/test_reporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quor {

// The number of the failure with which the body ends, 0 without one.
template <class Body> std::int32_t FailureOf(Body&& body)
{
    try {
        body();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace quor

using namespace quor;
